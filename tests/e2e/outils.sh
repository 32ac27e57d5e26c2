# Helpers for whole-window journeys: the real program in a real window, driven by keyboard and mouse.
# Sourced by the journeys; needs DISPLAY, PROGRAMME (the binary) and IMAGES (where pictures go).
set -euo pipefail

# All that a journey leaves but its pictures lies here, and goes with it.
TRAVAIL=$(mktemp -d)
trap 'rm -rf "$TRAVAIL" || true' EXIT
export HOME="$TRAVAIL/maison" # what a journey before has written is asked about
mkdir -p "$HOME"
export XDG_DATA_HOME="${XDG_DATA_HOME:-$TRAVAIL/donnees}"
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$TRAVAIL}"
export LC_ALL="${LC_ALL:-C.UTF-8}" TZ="${TZ:-UTC}"
MAGASIN="$XDG_DATA_HOME/velmaris/valeurs.sqlite"
mkdir -p "$IMAGES" "$XDG_DATA_HOME"

# Ends the journey; what the screen shows is left as a picture.
echoue() {
  echo "ÉCHEC : $*" >&2
  import -window root "$IMAGES/echec-$(basename "$0" .sh)-${LANGUE:-}.png" 2>/dev/null || true
  exit 1
}

# Waits up to three minutes for a command to succeed: a busy machine takes its time.
attends() {
  for _ in $(seq 1800); do
    "$@" && return 0
    sleep 0.1
  done
  echoue "attendu en vain : $*"
}

# What those have done who have a share in a key press: the program, the window manager, the screen. Each has its state
# and how often it has had the processor. Sets MAINTENANT, and starts no process for it: a busy machine would let that
# wait for as long as a cursor takes to blink.
activite() {
  local numero ecran='' etat tranches
  MAINTENANT=''
  read -r ecran <"/tmp/.X${DISPLAY#*:}-lock" || true
  for numero in ${PID:-} ${GESTIONNAIRE:-} $ecran; do
    read -r _ _ etat _ <"/proc/$numero/stat" && read -r _ _ tranches <"/proc/$numero/schedstat" || continue
    MAINTENANT+="$etat$tranches "
  done
}
# Waits until none of them has anything left to do: three looks without a change, or, on a machine so busy that a cursor
# blinks between any two, twenty without one of them waiting for the processor.
calme() {
  local avant=debut MAINTENANT fois=0 oisifs=0
  for _ in $(seq 9000); do
    activite 2>/dev/null
    if [[ $MAINTENANT == *[RD]* ]]; then oisifs=0; else oisifs=$((oisifs + 1)); fi
    if [ "$MAINTENANT" = "$avant" ] && [ $oisifs -gt 0 ]; then fois=$((fois + 1)); else fois=0; fi
    [ $fois -ge 2 ] || [ $oisifs -ge 20 ] && return 0
    avant=$MAINTENANT
    sleep 0.02
  done
  echoue "le programme ne se calme pas"
}
# Waits for a moment, and then for the calm: where the time itself counts, as between two clicks.
pause() { sleep "$1"; calme; }

# The window manager, once it manages.
gere() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
gestionnaire() {
  openbox 2>/dev/null &
  GESTIONNAIRE=$!
  attends gere
}
boite_ouverte() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
boite_fermee() { ! boite_ouverte "$1"; }
finie() { ! kill -0 "$PID" 2>/dev/null; }
EXIT_BOX='^Velmaris - '
TOLD_BOX='^Velmaris$'
REPRISE_BOX='^(Dernière séance|Last session)$'

# Presses keys in the box of that title once it is there.
repond() {
  attends boite_ouverte "$1"
  pause 0.3
  touche "${@:2}"
}

# Gives the window the keyboard again after a box.
reprend() {
  attends boite_fermee "$1"
  xdotool windowfocus --sync "$FENETRE"
  pause 0.2
}

# Gives another window the keyboard again, once a box over it has gone.
revient() {
  attends boite_fermee "$1"
  xdotool windowfocus "$(xdotool search --onlyvisible --name "$2" | head -n 1)"
  pause 0.3
}
# Finds the program's main window, whose title ends with the file's name once the clock has ticked.
fenetre_principale() {
  FENETRE=$(xdotool search --all --onlyvisible --pid "$PID" --name 'GMT|Velmaris 2009' 2>/dev/null | head -n 1)
  [ -n "$FENETRE" ]
}

# Whether a program that has died has left a session: the next one asks whether to take it up.
seance_laissee() {
  local fichier="$XDG_DATA_HOME/velmaris/reprise.txt"
  [ -s "$fichier" ] && flock -n "$fichier.verrou" true
}

# Starts the program, with arguments or without, and waits for its window: sets PID and FENETRE. A session that was left
# is not taken up, unless REPRISE_VOULUE is the key for it.
demarre() {
  local laissee=non
  seance_laissee && laissee=oui
  "$PROGRAMME" "$@" 2>"$XDG_DATA_HOME/erreurs.txt" &
  PID=$!
  attends fenetre_principale
  if [ $laissee = oui ]; then
    repond "$REPRISE_BOX" "${REPRISE_VOULUE:-Escape}"
    attends boite_fermee "$REPRISE_BOX"
  fi
  xdotool windowfocus --sync "$FENETRE"
  pause 0.4
}

# Starts the program where it has something to tell first: a picture of the box, then Return. Arguments follow the
# picture's name.
demarre_apres_boite() {
  "$PROGRAMME" "${@:2}" 2>"$XDG_DATA_HOME/erreurs.txt" &
  PID=$!
  attends boite_ouverte "$TOLD_BOX"
  image "$1"
  repond "$TOLD_BOX" Return
  attends fenetre_principale
  reprend "$TOLD_BOX"
}

# Pixels of 1/1440 inch by the scale that this screen gives: its height less a title bar's counts 12,592.5 of them, with
# a scale of 0.8 at least.
ECHELLE=$(xdpyinfo | awk '/dimensions/ {split($2, taille, "x"); e = (taille[2] - 32) / 839.5; printf "%d", 1e6 * (e > 0.8 ? e : 0.8)}')
px() { echo $(($1 * ECHELLE / 15000000)); }
# Clicks at a place of the window in 1/1440 inch, as the table of controls counts.
clic() { xdotool mousemove --window "$FENETRE" "$(px "$1")" "$(px "$2")" click 1; pause 0.15; }
# Goes to a place of the window, as the table counts, and presses nothing.
va() { xdotool mousemove --window "$FENETRE" "$(px "$1")" "$(px "$2")"; pause 0.2; }
touche() { xdotool key --clearmodifiers --delay 30 "$@"; calme; }
tape() { xdotool type --delay 15 -- "$1"; calme; }
# Types into the field that has the focus and goes on to the next.
champ() { tape "$1"; touche Tab; }

image() { pause 0.3; import -window root "$IMAGES/$1.png"; }
reglage() { sqlite3 "$MAGASIN" "SELECT valeur FROM valeurs WHERE cle='$1'"; }
stocke() { [ "$(reglage "$1")" = "$2" ]; }
attendu() { [ "$2" = "$3" ] || echoue "$1 : attendu « $3 », lu « $2 »"; }

# Pixels near one colour on a picture, as ImageMagick names it.
pixels() { convert "$IMAGES/$2.png" -fuzz 12% -fill black +opaque "$1" -fill white -opaque "$1" -format '%[fx:int(mean*w*h+0.5)]' info:; }

# Takes a picture until a colour has at least so many pixels on it.
attend_pixels() {
  for _ in $(seq 50); do
    image "$1"
    [ "$(pixels "$2" "$1")" -ge "$3" ] && return 0
  done
  echoue "$1 : trop peu de $2"
}

# Another sight of the Sun, of the same day and sides: hour, minute, second; latitude; longitude; degrees, minutes,
# seconds read.
visee_suivante() { clic 300 2850; tape_suivante "$@"; }
tape_suivante() {
  for texte in 21 06 2026 "$1" "$2" "$3"; do champ "$texte"; done
  touche Tab # past "Top"
  champ "$4"; champ "$5"; touche Tab
  champ "$6"; champ "$7"; touche Tab
  for texte in "$8" "$9" "${10}"; do champ "$texte"; done
}

# Chooses what a click on a line does: the place of its option from the top.
MODE_ENREGISTRE=3240 MODE_AFFICHE=3540 MODE_EFFACE=3840 MODE_CENTRE=4140 MODE_RETIRE=4440 MODE_DROITE=4815
MODE_ESTIME=5190
mode() { clic 3200 "$1"; }

# Opens a saved sight by its path.
CHARGE="^(Charger un|Load a) "
ouvre_visee() {
  clic 1100 500
  attends boite_ouverte "$CHARGE"
  pause 0.3
  tape "$1"
  touche Return
  reprend "$CHARGE"
}

# Three stars of one evening off Brittany, each on a line some miles from the estimated position, as files in a folder.
# The companion beside the program tells what reading that takes.
vise_etoile() {
  local fichier=$1 rang=$2 minute=$3 seconde=$4 milles=$5 lecture=2700 intercept
  for _ in 1 2 3 4; do
    awk -v l="$lecture" -v rang="$rang" -v m="$minute" -v s="$seconde" 'BEGIN {
      d = int(l / 60); split("22|" m "|" s "|12|08|2026|05|10|47|40|2,5|-1,0|" sprintf("%02d|%02d", l - 60 * d, d) "|Nord|Ouest|" \
        sprintf("%02d", (l - int(l)) * 60) "| 3 |NATU| 2 |0| " rang " ", champ, "|")
      for (i = 1; i <= 22; ++i) printf "%s\r\n", champ[i] }' >"$fichier"
    intercept=$("$(dirname "$PROGRAMME")/velmaris-calcul" reduit "$fichier" | sed -n 's/.*"intercept":\([-0-9.e]*\).*/\1/p')
    lecture=$(awk -v l="$lecture" -v v="$milles" -v i="$intercept" 'BEGIN { print l + v - i }')
  done
}
vise_etoiles() {
  vise_etoile "$1/1 Altair.LoP" 28 40 00 4.2
  vise_etoile "$1/2 Dubhe.LoP" 59 45 30 -3.1
  vise_etoile "$1/3 Arcturus.LoP" 33 51 10 2.4
}

# A whole sight of the Sun from the day's field on, which has the keyboard: Brittany, shortly before noon.
tape_bretagne() {
  for texte in 21 06 2026 12 05 30; do champ "$texte"; done
  touche Tab # past "Top"
  champ 47; champ 30
  touche Left Tab # north
  champ 05; champ 10
  touche Tab # west, as at a first start
  champ 65; champ 34; champ 38
  touche Tab Tab Tab # seconds, lower limb, natural horizon
  champ -1.0; champ 2.5
}
visee_bretagne() { clic 300 2850; tape_bretagne; }

# Three sights of one day off Brittany, kept as the lines 2, 1 and 3; the module of the lines is open.
enregistre_trois_droites() {
  visee_bretagne; touche space; pause 0.3
  mode $MODE_ENREGISTRE; touche F6; attends stocke 'AS(1)' 0
  visee_suivante 08 30 00 47 50 05 50 37 47 20; clic 700 8300; pause 0.3
  mode $MODE_ENREGISTRE; touche F5; attends stocke 'AS(0)' 0
  visee_suivante 16 40 00 47 15 04 35 33 41 10; clic 700 8300; pause 0.3
  mode $MODE_ENREGISTRE; touche F7; attends stocke 'AS(2)' 0
}

# Leaves by F2 and Yes, and waits for the end.
quitte() {
  touche F2
  attends boite_ouverte "$EXIT_BOX"
  image "${1:-quitter}"
  touche Return
  attends finie
  wait "$PID" || echoue "le programme finit par une erreur"
}
