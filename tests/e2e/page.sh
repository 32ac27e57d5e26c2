#!/usr/bin/env bash
# The print page, from two lines and the chart to a PDF file of one sheet, and by night.
# Usage: page.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"

export HOME="$XDG_DATA_HOME/maison" CUPS_SERVER=/nulle/part # no printer
mkdir -p "$HOME"
[ "$LANGUE" = en ] && DIALOGUE='^Print$' || DIALOGUE='^Imprimer$'

demarre
[ "$LANGUE" = en ] && clic 14700 520
visee_bretagne
touche space
clic 7700 520
mode $MODE_ENREGISTRE; touche F5; pause 0.3
visee_suivante 16 40 00 47 15 04 35 33 41 10
touche Tab Tab Tab Tab Tab; touche space; pause 0.3
mode $MODE_ENREGISTRE; touche F6; pause 0.3
clic 6200 520; touche F5; touche F6; pause 0.3

clic 1900 520
attends boite_ouverte '^Impression$'
image "page-$LANGUE"
touche Return
repond "$DIALOGUE" alt+f ctrl+a
image "page-$LANGUE-imprimante"
tape "$HOME/deux droites.pdf"
touche Return
attends test -s "$HOME/deux droites.pdf"
pdfinfo "$HOME/deux droites.pdf" >"$HOME/pdf.txt"
attendu "pages" "$(awk '/^Pages/ { print $2 }' "$HOME/pdf.txt")" 1
awk '/^Page size/ { exit !($3 > $5) }' "$HOME/pdf.txt" || echoue "la feuille n'est pas en paysage"
pdftotext -layout "$HOME/deux droites.pdf" - >"$HOME/texte.txt"
for texte in '1°  *Droite' '2°  *Droite' '12 : 05 : 30' '16 : 40 : 00' "47° 30' N" "05° 10' W"; do
  grep -q "$texte" "$HOME/texte.txt" || echoue "« $texte » manque sur la feuille"
done
! grep -q Imprimer "$HOME/texte.txt" || echoue "le bouton est imprimé"
cp "$HOME/deux droites.pdf" "$IMAGES/page-$LANGUE.pdf"
pdftoppm -r 96 -png -singlefile "$HOME/deux droites.pdf" "$IMAGES/page-$LANGUE-papier"

revient "$DIALOGUE" '^Impression$'

# A click puts the page away; by night it is red, and printed as by day.
xdotool mousemove --window "$(xdotool search --onlyvisible --name "^Impression$" | head -n 1)" "$(px 4500)" "$(px 900)" click 1
reprend '^Impression$'
touche ctrl+n ctrl+n
clic 1900 520
attends boite_ouverte '^Impression$'
image "page-$LANGUE-nuit"
touche Return
attends boite_ouverte "$DIALOGUE"
image "page-$LANGUE-nuit-imprimante"
touche Escape
revient "$DIALOGUE" '^Impression$'
touche Escape
reprend '^Impression$'
touche ctrl+n

quitte "page-$LANGUE-quitter"
