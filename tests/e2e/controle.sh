#!/usr/bin/env bash
# The check of a sight in the real window: the line under the results, the check sheet by key and by click, its copy, a
# setting typed, a slip named, the same by night.
# Usage: controle.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
FICHE='^(Fiche de contrôle|Check sheet)$'
fiche() { xdotool search --onlyvisible --name "$FICHE" | head -n 1; }

demarre
[ "$LANGUE" = en ] && clic 14700 520
visee_bretagne
clic 700 8300; pause 0.5 # "Calcul"
image "controle-$LANGUE-1-panneau"

touche ctrl+i
attends boite_ouverte "$FICHE"
pause 0.5
image "controle-$LANGUE-2-fiche"
xdotool windowfocus --sync "$(fiche)"
touche Tab; pause 0.2
touche Escape
attends boite_fermee "$FICHE"

# A slip: an hour too late; by night.
touche ctrl+n ctrl+n
clic 1365 $((1050 + 2025 + 150)); touche ctrl+a; tape 13; touche Tab
clic 700 8300; pause 0.5
clic 700 $((1050 + 8925 + 300))
attends boite_ouverte "$FICHE"
pause 0.5
image "controle-$LANGUE-3-nuit"
xdotool windowfocus --sync "$(fiche)"; touche Escape; attends boite_fermee "$FICHE"
xdotool windowfocus --sync "$FENETRE"
# A star whose row lies far from it is marked in the list.
touche ctrl+n
clic 1700 1800; pause 0.3
clic 2100 2115; pause 0.3
clic 1000 2115; pause 0.5
image "controle-$LANGUE-4-etoiles"
touche Escape
quitte "controle-$LANGUE-5-quitter"
echo "controle-$LANGUE : bien"
