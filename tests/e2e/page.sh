#!/usr/bin/env bash
# The print page, from two lines and the chart to a PDF file of one sheet, and by night; the guide and the about box on
# a desktop that opens nothing.
# Usage: page.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"

# No printer, and a desktop that opens nothing.
export HOME="$XDG_DATA_HOME/maison" CUPS_SERVER=/nulle/part
mkdir -p "$HOME/bin"
printf '#!/bin/sh\necho "$1" >>"$HOME/ouvert.txt"\nexit 3\n' >"$HOME/bin/xdg-open"
chmod +x "$HOME/bin/xdg-open"
export PATH="$HOME/bin:$PATH"
[ "$LANGUE" = en ] && DIALOGUE='^Print$' APROPOS='^About$' || DIALOGUE='^Imprimer$' APROPOS='^A propos$'

demarre
[ "$LANGUE" = en ] && clic 14700 520
visee_bretagne
touche space
clic 7700 520
mode $MODE_ENREGISTRE; touche F5; sleep 0.3
visee_suivante 16 40 00 47 15 04 35 33 41 10
touche Tab Tab Tab Tab Tab; touche space; sleep 0.3
mode $MODE_ENREGISTRE; touche F6; sleep 0.3
clic 6200 520; touche F5; touche F6; sleep 0.3

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

# Gives another window the keyboard again, once a box over it has gone.
revient() {
  attends boite_fermee "$1"
  xdotool windowfocus "$(xdotool search --onlyvisible --name "$2" | head -n 1)"
  sleep 0.3
}
revient "$DIALOGUE" '^Impression$'

# A click puts the page away; by night it is red, and printed as by day.
xdotool mousemove --window "$(xdotool search --onlyvisible --name "^Impression$" | head -n 1)" 300 60 click 1
reprend '^Impression$'
touche ctrl+n
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

# The guide and the links, on a desktop where nothing opens them: the address is shown.
touche F1
attends boite_ouverte "$TOLD_BOX"
image "page-$LANGUE-aide"
repond "$TOLD_BOX" Return
reprend "$TOLD_BOX"
clic 9000 6000
touche Up Up Up Return
attends boite_ouverte "$APROPOS"
image "page-$LANGUE-apropos"
touche space
attends boite_ouverte "$TOLD_BOX"
image "page-$LANGUE-adresse"
repond "$TOLD_BOX" Return
revient "$TOLD_BOX" "$APROPOS"
touche Escape
reprend "$APROPOS"
attendu "adresse demandée" "$(tail -n 1 "$HOME/ouvert.txt")" https://www.velmaris.org/
quitte "page-$LANGUE-quitter"
