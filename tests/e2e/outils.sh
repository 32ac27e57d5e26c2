# Helpers for whole-window journeys: the real program in a real window, driven by keyboard and mouse.
# Sourced by the journeys; needs DISPLAY, PROGRAMME (the binary) and IMAGES (where pictures go).
set -euo pipefail

export XDG_DATA_HOME="${XDG_DATA_HOME:-$(mktemp -d)}"
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
export LC_ALL="${LC_ALL:-C.UTF-8}" TZ="${TZ:-UTC}"
MAGASIN="$XDG_DATA_HOME/velmaris/valeurs.sqlite"
mkdir -p "$IMAGES" "$XDG_DATA_HOME"

echoue() { echo "ÉCHEC : $*" >&2; exit 1; }

# Starts the program and waits for its window: sets PID and FENETRE.
demarre() {
  "$PROGRAMME" 2>"$XDG_DATA_HOME/erreurs.txt" &
  PID=$!
  for _ in $(seq 100); do
    FENETRE=$(xdotool search --onlyvisible --pid "$PID" 2>/dev/null | head -n 1 || true)
    [ -n "$FENETRE" ] && break
    sleep 0.1
  done
  [ -n "${FENETRE:-}" ] || echoue "la fenêtre ne s'ouvre pas"
  xdotool windowfocus --sync "$FENETRE"
  sleep 0.4
}

# Clicks at a place of the window in 1/1440 inch, as the table of controls counts.
clic() { xdotool mousemove --window "$FENETRE" $(($1 / 15)) $(($2 / 15)) click 1; sleep 0.15; }
touche() { xdotool key --clearmodifiers --delay 30 "$@"; }
tape() { xdotool type --delay 15 -- "$1"; }
# Types into the field that has the focus and goes on to the next.
champ() { tape "$1"; touche Tab; }

image() { sleep 0.3; import -window root "$IMAGES/$1.png"; }
reglage() { sqlite3 "$MAGASIN" "SELECT valeur FROM valeurs WHERE cle='$1'"; }
attendu() { [ "$2" = "$3" ] || echoue "$1 : attendu « $3 », lu « $2 »"; }

# A whole sight of the Sun by keyboard alone, from the day's field on: Brittany, shortly before noon.
visee_bretagne() {
  clic 300 2850
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

# Leaves by F2 and Yes, and waits for the end.
quitte() {
  touche F2; sleep 0.4
  image "${1:-quitter}"
  touche Return
  for _ in $(seq 50); do kill -0 "$PID" 2>/dev/null || break; sleep 0.1; done
  wait "$PID" || echoue "le programme finit par une erreur"
}
