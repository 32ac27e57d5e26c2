#!/usr/bin/env bash
# Practice in the real window by keyboard: a graded one begun, its sights taken into the panel and reduced, one with a
# slip, a fix typed, the correction; dusk and night. The journal stays away.
# Usage: exercice.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
EXERCICE='^(Exercice|Practice)$'
JOURNAL="$XDG_DATA_HOME/velmaris/journal.csv"
ouvre_exercice() {
  touche ctrl+e
  attends boite_ouverte "$EXERCICE"
  xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "$EXERCICE" | head -n 1)"
  pause 0.5
}
ferme_exercice() {
  touche Escape
  reprend "$EXERCICE"
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
ouvre_exercice
# The keyboard is in the list of practices: the seventh, stars behind clouds from a ship under way.
touche Down Down Down Down Down Down
touche Tab
touche space
pause 0.5
image "exercice-$LANGUE-1-donne"
# The list of sights has the keyboard: the first into the panel, reduced there by Return.
touche Return
ferme_exercice
touche Return
pause 0.3
image "exercice-$LANGUE-2-panneau"
# The second, typed an hour off.
ouvre_exercice
touche Down Return
ferme_exercice
touche Tab Tab Tab
tape 11
touche Return
pause 0.3
[ -e "$JOURNAL" ] && echoue "une visée d'exercice est au journal"
ouvre_exercice
image "exercice-$LANGUE-3-reduites"
touche Tab Tab
champ "10 5.0 S"; champ "20 0.0 W"
touche space
pause 0.5
image "exercice-$LANGUE-4-corrige"
touche shift+Tab shift+Tab shift+Tab shift+Tab
pause 0.3
image "exercice-$LANGUE-5-faute"
touche ctrl+n; pause 0.3
image "exercice-$LANGUE-6-crepuscule"
touche ctrl+n; pause 0.3
image "exercice-$LANGUE-7-nuit"
touche ctrl+n
ferme_exercice
quitte "exercice-$LANGUE-8-quitter"
[ -e "$JOURNAL" ] && echoue "une visée d'exercice est au journal"
stocke Exercice "107 3 4 0.5 2 6 0.3 15 55" || echoue "l'exercice n'est pas gardé"
echo "exercice-$LANGUE : bien"
