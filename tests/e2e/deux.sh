#!/usr/bin/env bash
# Two of the real program on one data folder at once: each stores lines of its own and enters sights in the journal, both
# leave; nothing of either is lost, and the next start shows all.
# Usage: deux.sh PROGRAMME IMAGES EXEMPLES
PROGRAMME=$1 IMAGES=$2 EXEMPLES=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
export HOME="$XDG_DATA_HOME/maison"
mkdir -p "$HOME"
journal() { [ "$(wc -l <"$XDG_DATA_HOME/velmaris/journal.csv")" = "$1" ]; }

titre_dit() { xdotool getwindowname "$FENETRE" | grep -q "$1"; }

# Brings one of the two to the front.
prend() {
  PID=${PIDS[$1]} FENETRE=${FENETRES[$1]}
  xdotool windowraise "$FENETRE" windowfocus --sync "$FENETRE"
  pause 0.4
}

# Both start on a folder that isn't there yet.
PIDS=() FENETRES=()
"$PROGRAMME" "$EXEMPLES/21JUN26 120530.LoP" 2>/dev/null &
PIDS[0]=$!
"$PROGRAMME" "$EXEMPLES/21JUN26 092005.LoP" 2>/dev/null &
PIDS[1]=$!
for i in 0 1; do
  PID=${PIDS[$i]}
  attends fenetre_principale
  FENETRES[i]=$FENETRE
  attends titre_dit '21JUN26' # the sight is there
done

prend 0; touche F5; attends stocke 'T3(0)' 12
prend 1; touche F6; attends stocke 'T3(1)' 09
prend 0; clic 700 8300; attends journal 2
prend 1; clic 700 8300; attends journal 3
prend 0; mode $MODE_ENREGISTRE; touche F7; attends stocke 'T3(2)' 12
prend 1; mode $MODE_ENREGISTRE; touche F8; attends stocke 'T3(3)' 09
prend 0; quitte deux-premier
prend 1; quitte deux-second
attendu "les quatre droites" "$(reglage 'T3(0)') $(reglage 'T3(1)') $(reglage 'T3(2)') $(reglage 'T3(3)')" "12 09 12 09"
attendu "les clés de chacune" "$(for i in 0 1 2 3; do sqlite3 "$MAGASIN" "SELECT count(*) FROM valeurs WHERE cle LIKE '%($i)' AND cle NOT LIKE 'Combo%'"; done | sort -u | wc -l)" 1
attendu "le magasin" "$(sqlite3 "$MAGASIN" 'PRAGMA integrity_check')" ok
[ -z "$(find "$XDG_DATA_HOME/velmaris" -name '*.abime*')" ] || echoue "un magasin mis de côté"

demarre
boite_ouverte "$TOLD_BOX" && echoue "le départ annonce quelque chose"
image deux-retour
quitte deux-fin
echo "deux à la fois : bien"
