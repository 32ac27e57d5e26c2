#!/usr/bin/env bash
# The ends that nobody has asked for: signals that kill and signals that ask, a lost screen. Each leaves the recovery
# file whole, with what was typed last; the program's own exit leaves none.
# Usage: fin.sh PROGRAMME IMAGES
# A journey started under nohup would hand its deafness on to the program, which heeds it rightly.
[ -n "${SIGNAUX_REMIS:-}" ] || SIGNAUX_REMIS=oui exec env --default-signal=HUP,INT,QUIT bash "$0" "$@"
PROGRAMME=$1 IMAGES=$2
. "$(dirname "$0")/outils.sh"
gestionnaire
REPRISE="$XDG_DATA_HOME/velmaris/reprise.txt"

# What the recovery file holds of the reading's degrees; nothing where the file isn't whole.
lecture() { [ "$(tail -n 1 "$1" 2>/dev/null)" = fin ] && sed -n 's/^controle\tText13\t-1\t//p' "$1"; }
tient() { [ "$(lecture "$REPRISE")" = "$1" ]; }
tape_lecture() { touche F3 ctrl+a; tape "$1"; attends tient "$1"; }
# The program has ended of something with a status, and a reading is kept.
statut_attendu() {
  local statut=0
  attends finie
  wait "$PID" 2>/dev/null || statut=$?
  attendu "le statut après $1" "$statut" "$2"
  tient "$3" || echoue "la reprise après $1 : « $(lecture "$REPRISE") »"
}

degres=20
for fin in SEGV:139 ABRT:134 BUS:135 KILL:137 TERM:0 HUP:0; do
  degres=$((degres + 1))
  demarre
  tape_lecture $degres
  kill -"${fin%:*}" "$PID"
  statut_attendu "${fin%:*}" "${fin#*:}" $degres
done

# The last key counts, also where the signal comes right behind it.
for degres in 41 42 43; do
  demarre
  tape_lecture 40
  touche BackSpace; tape "${degres#4}"
  sleep 0.05
  kill -SEGV "$PID"
  statut_attendu "une touche" 139 $degres
done

# In the middle of a question, and of the file dialog.
demarre
tape_lecture 51
touche F2
attends boite_ouverte "$EXIT_BOX"
kill -TERM "$PID"
statut_attendu "TERM sur une question" 0 51
demarre
tape_lecture 52
clic 1100 500
attends boite_ouverte "$CHARGE"
kill -HUP "$PID"
statut_attendu "HUP sur un dialogue" 0 52

# A session that was left is there beside the new one; a program's own exit leaves nothing of itself.
demarre
tape_lecture 61
attendu "la session laissée" "$(lecture "$XDG_DATA_HOME/velmaris/reprise-derniere.txt")" 52
image fin-1-reprise
quitte fin-2-quitter
[ ! -e "$REPRISE" ] || echoue "une reprise après une fin ordonnée"

# A screen that goes: the program ends, and what was typed stays.
NUMERO=$((200 + $$ % 700))
Xvfb ":$NUMERO" -screen 0 1024x768x24 -noreset 2>/dev/null &
ECRAN=$!
attends test -S "/tmp/.X11-unix/X$NUMERO"
export DISPLAY=":$NUMERO"
gestionnaire
demarre
tape_lecture 71
kill -KILL "$ECRAN"
statut_attendu "la perte de l'écran" 1 71
echo "toutes les fins laissent la reprise : bien"
