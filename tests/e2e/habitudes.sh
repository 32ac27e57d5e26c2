#!/usr/bin/env bash
# The habits of a desktop in the real window: the keys of its commands, results and pictures copied and saved, modules
# put away and kept in their places, recent sights, the sky at another moment, sizes that are kept.
# Usage: habitudes.sh PROGRAMME IMAGES fr|en EXEMPLES
PROGRAMME=$1 IMAGES=$2 LANGUE=$3 EXEMPLES=$4
. "$(dirname "$0")/outils.sh"
. "$(dirname "$0")/outils_ciel.sh"
gestionnaire
export HOME="$XDG_DATA_HOME/maison"
mkdir -p "$HOME"
NOM=habitudes-$LANGUE-$(xdpyinfo | awk '/dimensions/ {print $2}')
SAUVE="^(Sauvegarder le FICHIER|Save the (sight|FILE))"
IMAGE="^(Enregistrer l'IMAGE|Save the PICTURE)"
PAGE="^(Impression|Print)"
titre_dit() { xdotool getwindowname "$FENETRE" | grep -q "$1"; }
est_la() { [ -s "$1" ]; }
# The entry of the sheet's menu at a place from its top, disabled ones not counted.
entree() {
  clic 9000 6000
  for _ in $(seq "$1"); do touche Down; done
  touche "${@:2}"
}
# Saves the sheet's picture under a path.
enregistre() {
  entree 8 Return
  attends boite_ouverte "$IMAGE"
  pause 0.3
  touche ctrl+a; tape "$1"; touche Return
  reprend "$IMAGE"
  attends est_la "$1"
}

demarre "$EXEMPLES/21JUN26 120530.LoP"
[ "$LANGUE" = en ] && clic 14700 520
clic 700 8300 # a calculation
pause 0.5

# The menu of a result, by the right button and by the menu key; the status line tells what was copied.
xdotool mousemove --window "$FENETRE" "$(px 1500)" "$(px 9000)" click 3; pause 0.5
image "$NOM-copier"
touche Down Return
image "$NOM-copie"
va 1500 9000; touche Menu
image "$NOM-touche-menu"
touche Escape
va 9000 6000; touche shift+F10
image "$NOM-menu"
touche Escape

# The picture in three forms.
for suffixe in png svg pdf; do enregistre "$HOME/feuille.$suffixe"; done
[ "$(identify -format '%m' "$HOME/feuille.png")" = PNG ] || echoue "le PNG n'en est pas un"
grep -q '<svg' "$HOME/feuille.svg" || echoue "le SVG n'en est pas un"
pdfinfo "$HOME/feuille.pdf" | grep -q '^Pages: *1$' || echoue "le PDF n'en est pas un"
cp "$HOME/feuille.png" "$IMAGES/$NOM-feuille.png"

# F12, and the layout that is kept: the last entry of the modules' menu.
touche F12; image "$NOM-range"
touche F12; image "$NOM-remis"
entree 5 Right Up Return
attendu "la disposition est gardée" "$(reglage Disposition)" 1
clic 10200 500 # the chart's module

# The buttons' keys.
touche ctrl+s
attends boite_ouverte "$SAUVE"; pause 0.3
touche ctrl+a; tape "$HOME/mienne.LoP"; touche Return
reprend "$SAUVE"
attends est_la "$HOME/mienne.LoP"
touche ctrl+o
attends boite_ouverte "$CHARGE"; touche Escape
reprend "$CHARGE"
touche ctrl+p; pause 0.8
image "$NOM-page"
touche Escape; pause 0.5
xdotool windowfocus --sync "$FENETRE"

# The recent sights: the arrow, then "Ouvre" held down.
clic 1440 500
image "$NOM-recentes"
touche Down Down Return
attends titre_dit '21JUN26 120530$'
xdotool mousemove --window "$FENETRE" "$(px 1000)" "$(px 500)" mousedown 1; pause 1; xdotool mouseup 1; pause 0.3
image "$NOM-tenu"
touche Down Down Return
attends titre_dit 'mienne$'

# The sky, two steps later, in a small window, which is as small the next time.
ouvre_ciel
touche plus plus
image "$NOM-ciel"
xdotool windowsize --sync "$CIEL" 800 500; pause 0.8
image "$NOM-ciel-petit"
touche Escape
attends boite_fermee "$TITRE"
taille=$(reglage 'Taille Ciel') # with the screen's scale after it
attendu "taille du ciel" "${taille%@*}" 800x500
xdotool windowfocus --sync "$FENETRE"
ouvre_ciel
attendu "largeur du ciel rouvert" "$WIDTH" 800
touche Escape
attends boite_fermee "$TITRE"
xdotool windowfocus --sync "$FENETRE"

# Ctrl+Q asks as the button does; the next start has the modules where they were.
touche ctrl+q
attends boite_ouverte "$EXIT_BOX"
touche Return
attends finie
case $(reglage Places) in *" 9 1 "*) ;; *) echoue "places gardées : $(reglage Places)" ;; esac
demarre
image "$NOM-depart"
quitte "$NOM-quitter"
echo "$NOM : bien"
