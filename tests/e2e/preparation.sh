#!/usr/bin/env bash
# The plan in the real window: the sky of an evening by keyboard, its day, the best sets, the compass, an unknown body; a
# body taken into the panel, the page written; dusk and night.
# Usage: preparation.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
EMPORTE='^(Emporter|Take along)'
PLAN='^(Préparation|Plan)$'
est_la() { [ -s "$1" ]; }
fenetre_plan() { xdotool search --onlyvisible --name "$PLAN" | head -n 1; }
tabule() { for _ in $(seq "$1"); do touche Tab; done; }

demarre
[ "$LANGUE" = en ] && clic 14700 520
touche ctrl+k
attends boite_ouverte "$PLAN"
xdotool windowfocus --sync "$(fenetre_plan)"
pause 0.5
# The keyboard is in the list of bodies: back to the date, past tabs, buttons and the ship.
for _ in $(seq 11); do touche shift+Tab; done
champ 21/06/2026; champ 21:50; champ "47 10.3 N"; champ "4 44.1 W"
touche Tab Tab
champ 122; champ 6; champ 3; champ 1.2
pause 0.5
image "preparation-$LANGUE-1-ciel"
for page in 2-jour 3-jeux 4-compas 5-inconnu; do
  touche Right
  pause 0.3
  image "preparation-$LANGUE-$page"
done
touche Left Left Left Left
# "Emporter...": before the date, past "Fermer".
for _ in $(seq 12); do touche shift+Tab; done
touche space
attends boite_ouverte "$EMPORTE"; pause 0.3
touche ctrl+a; tape "$HOME/soir.pdf"; touche Return
attends boite_fermee "$EMPORTE"
attends est_la "$HOME/soir.pdf"
cp "$HOME/soir.pdf" "$IMAGES/preparation-$LANGUE-page.pdf"
head -c 5 "$HOME/soir.pdf" | grep -q '%PDF-' || echoue "la page n'est pas un PDF"
xdotool windowfocus --sync "$(fenetre_plan)"; pause 0.3
tabule 12
touche Tab Down Return
pause 0.3
touche ctrl+n; pause 0.3
image "preparation-$LANGUE-6-crepuscule"
touche ctrl+n; pause 0.3
image "preparation-$LANGUE-7-nuit"
touche ctrl+n
touche Escape
attends boite_fermee "$PLAN"
xdotool windowfocus --sync "$FENETRE"
pause 0.3
image "preparation-$LANGUE-8-panneau"
quitte "preparation-$LANGUE-9-quitter"
echo "preparation-$LANGUE : bien"
