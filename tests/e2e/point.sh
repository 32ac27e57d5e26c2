#!/usr/bin/env bash
# The fix in figures in the real window, by keyboard alone: two sights of the Sun of one day, the run between them, the
# fix, kept, taken as the estimated position, on the sheet and put away; a third line that makes it a cocked hat.
# Usage: point.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
PAGE='^(Impression|Print)'
POINT='^(Point en chiffres|Fix in figures)$'
DOSSIER="$XDG_DATA_HOME/velmaris"
fenetre_point() { xdotool search --onlyvisible --name "$POINT" | head -n 1; }
lignes() { [ "$(cat "$DOSSIER/$1" 2>/dev/null | wc -l)" -eq "$2" ]; }
tabule() { for _ in $(seq "$1"); do touche Tab; done; }

demarre
[ "$LANGUE" = en ] && clic 14700 520
clic 7700 520 # the module of the lines
enregistre_trois_droites
attends lignes journal.csv 4
clic 7700 520 # the module of the lines goes

touche ctrl+g
attends boite_ouverte "$POINT"
xdotool windowfocus --sync "$(fenetre_point)"
pause 0.5
# The leg: past the assumed error, three buttons and the list of legs.
tabule 6
champ 21/06/2026; champ 08:00; champ 122; champ 6
touche space # "Ajouter"
pause 0.3
image "point-$LANGUE-1-jour"
# Kept: past current, doubts, boxes and "Prendre".
tabule 12
touche space
attends lignes points.csv 3
# Taken as the estimated position.
touche shift+Tab space
pause 0.3
touche Escape
attends boite_fermee "$POINT"
xdotool windowfocus --sync "$FENETRE"
pause 0.3
image "point-$LANGUE-2-feuille"
touche ctrl+p # the layer is on: it is on the page too
attends boite_ouverte "$PAGE"
pause 0.5
image "point-$LANGUE-8-page"
touche Escape
attends boite_fermee "$PAGE"
xdotool windowfocus --sync "$FENETRE"
pause 0.3
touche ctrl+n ctrl+g
attends boite_ouverte "$POINT"
xdotool windowfocus --sync "$(fenetre_point)"; pause 0.5
touche Down space # one sight less
image "point-$LANGUE-3-crepuscule"
touche space
touche ctrl+n; pause 0.3
image "point-$LANGUE-4-nuit"
touche Escape
attends boite_fermee "$POINT"
xdotool windowfocus --sync "$FENETRE"; pause 0.3
image "point-$LANGUE-5-feuille-nuit"
touche ctrl+n
clic 6200 520 # "Ecran" puts it away
pause 0.3
image "point-$LANGUE-6-ecran"
quitte "point-$LANGUE-7-quitter"
echo "point-$LANGUE : bien"
