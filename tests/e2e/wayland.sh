#!/usr/bin/env bash
# The program on a Wayland compositor, at a scale of one and a quarter or another, by keyboard: a start, one sight, the sky, the print
# page, the way out. The compositor shows itself as a window of the virtual screen; what windows the program has is told
# by what it says to the compositor.
# Usage: wayland.sh PROGRAMME IMAGES [SCALE]
PROGRAMME=$1 IMAGES=$2 DENSITE=${3:-1.25}
. "$(dirname "$0")/outils.sh"

chmod 700 "$XDG_RUNTIME_DIR"
COMPOSITEUR=velmaris-essai
# A release that a busy machine brings late isn't a key held down.
printf '[keyboard]\nrepeat-delay=600000\n[shell]\npanel-position=none\n' >"$TRAVAIL/weston.ini"
read -r LARGEUR HAUTEUR < <(xdpyinfo | awk '/dimensions/ { sub("x", " ", $2); print $2 }')
weston --backend=x11-backend.so --use-pixman --config="$TRAVAIL/weston.ini" --width=$((LARGEUR - 20)) \
  --height=$((HAUTEUR - 40)) --socket=$COMPOSITEUR --idle-time=0 \
  >"$TRAVAIL/weston.txt" 2>&1 &
GESTIONNAIRE=$!
trap 'kill "$GESTIONNAIRE" 2>/dev/null || true; rm -rf "$TRAVAIL" || true' EXIT
attends test -S "$XDG_RUNTIME_DIR/$COMPOSITEUR"
ecran() { FENETRE=$(xwininfo -root -tree | awk '/"Weston Compositor/ { print $1; exit }'); [ -n "$FENETRE" ]; }
attends ecran
# Whether its shell has drawn the ground: a window that comes before is given the keyboard and loses it for good.
prete() { [ "$(import -window root -crop 1x1+900+1000 -depth 8 -format '%[fx:mean>0.3]' info: 2>/dev/null)" = 1 ]; }
attends prete
xdotool windowfocus --sync "$FENETRE"

DIT="$TRAVAIL/dit.txt"
# How often the program has given a window this title; how many windows it has made and put away.
titres() { grep -c "set_title(\"$1" "$DIT" || true; }
titree() { [ "$(titres "$1")" -gt 0 ]; }
compte() { grep -cE "$1" "$DIT" || true; }
ouvertes() { echo $(($(compte '\.get_toplevel\(') - $(compte 'xdg_toplevel@[0-9]+\.destroy\('))); }
a_fenetres() { [ "$(ouvertes)" = "$1" ] && a_clavier; }
# Whether the compositor has given the keyboard to one of its windows: a key pressed between two goes to nobody.
a_clavier() { grep -oE 'wl_keyboard@[0-9]+\.(enter|leave)\(' "$DIT" | tail -n 1 | grep -q enter; }
repete() { local touches=(); for _ in $(seq "$2"); do touches+=("$1"); done; touche "${touches[@]}"; }
# Steps of the keyboard back from the reading, where "Top" leads it.
recule() { touche F3; repete shift+Tab "$1"; }
JOUR=13 ASTRES=26 IMPRIME=36 # past the complements

# Whether a key comes through to the program.
cle_passe() {
  a_clavier && touche shift && grep -qE 'wl_keyboard@[0-9]+\.key\(' "$DIT"
}

demarre_wayland() {
  WAYLAND_DEBUG=client WAYLAND_DISPLAY=$COMPOSITEUR QT_QPA_PLATFORM=wayland QT_SCALE_FACTOR=$DENSITE \
    QT_SCALE_FACTOR_ROUNDING_POLICY=PassThrough "$PROGRAMME" 2>"$DIT" &
  PID=$!
  attends titree ''
  attends cle_passe
  attends a_fenetres 1
  calme
}

demarre_wayland
image wayland-$DENSITE-1-depart
recule $JOUR
tape_bretagne
touche space
attends test -s "$XDG_DATA_HOME/velmaris/journal.csv"
image wayland-$DENSITE-2-visee
attendu "l'astre au journal" "$(tail -n 1 "$XDG_DATA_HOME/velmaris/journal.csv" | cut -d, -f2)" Soleil

recule $ASTRES; touche space
attends titree Astres
attends a_fenetres 2; calme
image wayland-$DENSITE-3-ciel
touche Escape
attends a_fenetres 1; calme

recule $IMPRIME; touche space
attends titree Impression
attends a_fenetres 2; calme
image wayland-$DENSITE-4-page
touche Escape
attends a_fenetres 1; calme

touche F2
attends titree 'Velmaris - '
attends a_fenetres 2; calme
image wayland-$DENSITE-5-quitter
touche Return
attends finie
STATUT=0; wait "$PID" || STATUT=$?
grep -vE '^\[ *[0-9.]+\]|^QStandardPaths' "$DIT" >&2 || true
[ $STATUT -eq 0 ] || echoue "le programme finit par une erreur"
echo "sous Wayland : bien"
