#!/usr/bin/env bash
# The printed pages in the real window by keyboard: an almanac of three days, turned and written as PDF and rows; a sight
# worked by hand with blanks; the day's page with its weather; a blank sheet; dusk and night.
# Usage: papier.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
PAPIER="^(Almanach|Almanac|Fiche de calcul|Worksheet|Page du jour|Day's page|Feuille de tracé|Plotting sheet)$"
FICHIER='^(PDF|CSV)\.\.\.$'
est_la() { [ -s "$1" ]; }
fenetre_papier() { xdotool search --onlyvisible --name "$PAPIER" | head -n 1; }
tabule() { for _ in $(seq "$1"); do touche Tab; done; }
recule_de() { for _ in $(seq "$1"); do touche shift+Tab; done; }
# Writes what is before it into a file: the button has the keyboard.
ecrit() {
  touche space
  attends boite_ouverte "$FICHIER"; pause 0.3
  touche ctrl+a; tape "$1"; touche Return
  attends boite_fermee "$FICHIER"
  attends est_la "$1"
  xdotool windowfocus --sync "$(fenetre_papier)"; pause 0.3
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
tape_bretagne
touche space
attends test -s "$XDG_DATA_HOME/velmaris/journal.csv"
touche ctrl+shift+a
attends boite_ouverte "$PAPIER"
xdotool windowfocus --sync "$(fenetre_papier)"
pause 0.5
champ 30/12/2026; champ 01/01/2027; touche ctrl+a; tape "50 N, 45 N, 10 S"; touche Return
calcule() { xdotool getactivewindow >/dev/null; image "papier-$LANGUE-1-almanach"; [ "$(couleurs_page)" -gt 3 ]; }
couleurs_page() { convert "$IMAGES/papier-$LANGUE-1-almanach.png" -crop 40%x60%+50%+20% -unique-colors txt:- | wc -l; }
attends calcule
# Past order, boxes, "Calculer" (its "Arrêter" is greyed), paper and page: the next page, then "PDF...", "CSV...".
tabule 8; touche space; pause 0.3
image "papier-$LANGUE-2-almanach"
tabule 1; ecrit "$HOME/almanach.pdf"
pdftotext -layout "$HOME/almanach.pdf" "$TRAVAIL/almanach.txt"
grep -q 2026 "$TRAVAIL/almanach.txt" || echoue "l'almanach ne dit pas l'année"
tabule 2; ecrit "$HOME/almanach.csv"
grep -q '2026-12-31' "$HOME/almanach.csv" || echoue "les rangées n'ont pas le jour"
# The other pages, by their tabs.
touche Escape; attends boite_fermee "$PAPIER"
xdotool windowfocus --sync "$FENETRE"; touche ctrl+shift+a; attends boite_ouverte "$PAPIER"
xdotool windowfocus --sync "$(fenetre_papier)"; pause 0.3
touche shift+Tab; touche Right; pause 0.3
image "papier-$LANGUE-3-fiche"
touche Right; pause 0.5
image "papier-$LANGUE-4-jour"
touche Right; pause 0.3
image "papier-$LANGUE-5-vierge"
touche Left Left; pause 0.3
touche ctrl+n; pause 0.3
image "papier-$LANGUE-6-crepuscule"
touche ctrl+n; pause 0.3
image "papier-$LANGUE-7-nuit"
touche ctrl+n
touche Escape
attends boite_fermee "$PAPIER"
xdotool windowfocus --sync "$FENETRE"
pause 0.3
quitte "papier-$LANGUE-8-quitter"
echo "papier-$LANGUE : bien"
