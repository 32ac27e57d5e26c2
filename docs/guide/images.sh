#!/usr/bin/env bash
# The pictures of the guide in one language, from the running program on the present screen.
# Usage: images.sh PROGRAMME IMAGES fr|en SORTIE EXEMPLES
#   IMAGES    where whole screens are left
#   SORTIE    where the guide's pictures go
#   EXEMPLES  the sample sights
PROGRAMME=$1 IMAGES=$2 LANGUE=$3 SORTIE=$4 EXEMPLES=$5
OUTILS="$(dirname "$0")/../../tests/e2e"
. "$OUTILS/outils.sh"
. "$OUTILS/outils_ciel.sh"
gestionnaire
export HOME="$TRAVAIL/marin" # what the file dialog shows
mkdir -p "$HOME/visees"
cp "$EXEMPLES"/*26*.LoP "$HOME/visees"
rm -f "$SORTIE"/*.png
OBJETS="^(Objets de|User's obj)"

# Writes a picture of the guide: its name, the screen it is cut from, the piece as WxH+X+Y in pixels, more for convert.
publie() {
  convert "$IMAGES/$2.png" -crop "$3" +repage "${@:4}" -strip -dither None -colors 96 "PNG8:$SORTIE/$1.png"
}
# Where a window stands on the screen, its frame left out: sets X, Y, WIDTH and HEIGHT.
mesure() {
  eval "$(xwininfo -id "$1" | awk '/Absolute upper-left X/ {print "X=" $NF} /Absolute upper-left Y/ {print "Y=" $NF}
    /Width:/ {print "WIDTH=" $NF} /Height:/ {print "HEIGHT=" $NF}')"
}
# The window of that title with its own, as a picture of the guide.
boite() {
  image "$2"
  mesure "$(xdotool search --onlyvisible --name "$1" | tail -n 1)"
  publie "$2" "$2" "${WIDTH}x$((HEIGHT + 20))+$X+$((Y - 20))" -filter Lanczos -resize '1200x>'
}
# A piece of the main window, its place and size in 1/1440 inch.
piece() {
  image "$1"
  mesure "$FENETRE"
  publie "$1" "$1" "$(px "$4")x$(px "$5")+$(($(px "$2") + X))+$(($(px "$3") + Y))" "${@:6}" -filter Lanczos -resize '1200x>'
}
# The whole main window with its title.
TITRE_HAUT=20
fenetre() {
  image "$1"
  mesure "$FENETRE"
  publie "$1" "$1" "${WIDTH}x$((HEIGHT + TITRE_HAUT))+$X+$((Y - TITRE_HAUT))" "${@:2}" -filter Lanczos -resize 1200x
}
# The middle of the sheet, as wide as the guide's pages.
feuille() { piece "$1" 4550 1320 14000 10620 -filter Lanczos -resize 960x; }
# Arguments for convert that draw figures in circles: pairs of places in 1/1440 inch, counted from one.
pastilles() {
  local n=1 x y
  PASTILLES=()
  while [ $# -gt 0 ]; do
    x=$(px "$1") y=$(($(px "$2") + TITRE_HAUT))
    PASTILLES+=(-fill '#c2185b' -stroke white -strokewidth 2 -draw "circle $x,$y $((x + 17)),$y"
      -fill white -stroke none -font Liberation-Sans-Bold -pointsize 22
      -draw "text $((x - (n > 9 ? 12 : 6))),$((y + 8)) '$n'")
    n=$((n + 1))
    shift 2
  done
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
clic 10200 520 # the module of the chart, while it has its title
piece module-carte 11475 1050 3700 2420
clic 10200 520
touche F4; pause 0.5
fenetre monde

# The first sight: the fields, the result, the sheet, the details.
visee_bretagne
piece champs 0 1050 3040 6740
touche space; pause 0.5
pastilles 3690 1000 1620 2100 2475 8700 11950 6250 13500 6120 12500 9270 9500 10850
fenetre fenetre "${PASTILLES[@]}"
piece barre 0 20 15900 1040
clic 2400 8100
piece details 3000 8700 2650 2000
clic 2400 8100
clic 8500 520 # the panel of the sight goes, the sheet shows
feuille feuille
clic 5400 520
feuille grille
clic 5400 520
clic 8500 520

# Two lines stored, then on one sheet, the first carried to the second's point.
clic 7700 520
mode $MODE_ENREGISTRE; touche F5; pause 0.3
visee_suivante 16 40 00 47 15 04 35 33 41 10; clic 700 8300; pause 0.3
mode $MODE_ENREGISTRE; touche F6; pause 0.3
clic 6200 520
touche F5; touche F6; pause 0.3
for _ in 1 2 3 4; do va 8000 6000; xdotool keydown ctrl click 4 keyup ctrl; pause 0.2; done
piece droites 3030 1050 3430 4330
mode $MODE_DROITE; clic 6045 4762; pause 0.3; touche Home Down Return; pause 0.2
touche F5; pause 0.3
clic 10200 520; clic 14200 3200; clic 10200 520 # the coordinates
clic 7700 520; clic 8500 520
va 13790 9215 # where the carried line crosses the second one
feuille transport
clic 1900 520 # the page to print
attends boite_ouverte '^Impression$'
boite '^Impression$' impression
touche Escape; reprend '^Impression$'
clic 10200 520; clic 14200 3200; clic 10200 520

# The first one carried to the dead-reckoning point: its panel, its run.
clic 8500 520
clic 6200 520
touche F5; pause 0.3
clic 10900 520
clic 4430 7310; pause 0.3; tape 16; touche Return
clic 5630 7310; pause 0.3; tape 40; touche Return
clic 4665 5865; champ 122; tape 6
clic 5895 6210; pause 0.3
piece estime 3030 5370 3430 2690
mode $MODE_ESTIME; touche F5; pause 0.3
clic 10900 520; clic 7700 520; clic 8500 520
feuille estime-feuille
clic 8500 520

# Course and distance between the two stored points.
clic 11600 520
touche F5 F6; pause 0.3
clic 8450 4015; pause 0.3
piece caps 3030 1035 8450 4340
clic 11600 520; clic 7700 520
clic 8500 520

# A Moon, a star, and the live panel of the Moon.
ouvre_visee "$HOME/visees/24SEP26 203025.LoP"
clic 9400 520; sleep 1.6
piece direct 11475 1080 3700 2280
clic 9400 520
piece lune 0 1050 3040 9650
ouvre_visee "$HOME/visees/14FEV26 201015.LoP"
piece etoile 0 1050 3040 9650
FICHE='^(Fiche de contrôle|Check sheet)$'
touche ctrl+i
attends boite_ouverte "$FICHE"
boite "$FICHE" fiche
xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "$FICHE" | tail -n 1)"
touche Escape
attends boite_fermee "$FICHE"
xdotool windowfocus --sync "$FENETRE"
clic 1100 500
attends boite_ouverte "$CHARGE"
touche Tab Down; pause 0.2
boite "$CHARGE" ouvre
touche Escape; reprend "$CHARGE"

# A route across the Channel, the menu, the editor of objects.
ouvre_visee "$HOME/visees/21JUN26 120530.LoP"
clic 7700 520
clic 10200 520; clic 12400 3200; clic 14200 3200; clic 10200 520
clic 10750 3330
pause 0.5
piece menu 9750 2400 8000 8600
touche Down Down Return; pause 0.5
clic 10750 3330; touche Down Down Return; pause 0.5
for place in "7150 6830" "8650 5930" "10650 6230" "12550 7730"; do va $place; xdotool click 3; pause 0.3; done
va 13750 8930
piece route 4550 1050 14000 10900 -filter Lanczos -resize 960x
touche ctrl+n ctrl+n; pause 0.4
fenetre nuit
touche ctrl+n; pause 0.4
clic 10200 520; clic 12400 3200; clic 14200 3200
clic 14475 2745
attends boite_ouverte "$OBJETS"
pause 0.3
xdotool mousemove --window "$(xdotool search --onlyvisible --name "$OBJETS" | tail -n 1)" "$(px 900)" "$(px 510)" click 1
pause 0.2
boite "$OBJETS" objets
touche Escape
attends boite_fermee "$OBJETS"
xdotool windowfocus --sync "$FENETRE"

# Who made the program; that puts the modules away.
clic 6200 520
clic 9000 6000; touche Down Down Down Down Down Down Down Down Down Down Return
attends boite_ouverte '^(A propos|About)$'
boite '^(A propos|About)$' apropos
touche Escape; reprend '^(A propos|About)$'
clic 8500 520

# The sky: the pointer on Sirius, then Orion on the other chart.
ouvre_ciel
horizon 180 43.2
boite "$TITRE" ciel
bas 6960 840
equateur 78.9 -8.2
boite "$TITRE" ciel-equateur
touche Escape
attends boite_fermee "$TITRE"
xdotool windowfocus --sync "$FENETRE"
quitte images-quitter
