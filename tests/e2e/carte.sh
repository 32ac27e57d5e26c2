#!/usr/bin/env bash
# The chart in the real window: the whole world, Brittany under three lines, its menu, a new centre, the coordinates and
# a route across the Channel.
# Usage: carte.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
TAILLE=$(xdpyinfo | awk '/dimensions/ {print $2}' | cut -dx -f1)
NOM=carte-$LANGUE-$TAILLE

# Presses the right button at a place of the window in 1/1440 inch.
point() { va "$1" "$2"; xdotool click 3; pause 0.2; }
# Dark pixels of a result's well in the panel of the sight.
chiffres() { convert "$IMAGES/$1.png" -crop 180x30+10+590 +repage -threshold 40% -negate -format '%[fx:int(mean*w*h+0.5)]' info:; }

demarre
[ "$LANGUE" = en ] && clic 14700 520
touche F4
attend_pixels "$NOM-monde" '#0000ff' 500 # lakes
[ "$(pixels '#0096b4' "$NOM-monde")" -ge 500 ] || echoue "pas de rivières"

# Three lines on one sheet, the chart with them.
clic 7700 520
enregistre_trois_droites
clic 6200 520
touche F6; touche F5; touche F7; pause 0.3
clic 7700 520 # the four lines' module goes, the sheet shows
attend_pixels "$NOM-bretagne" '#646464' 500
image "$NOM-bretagne"

# The wheel with the control key, and back by the key of the plus sign.
va 8000 6000
xdotool keydown ctrl click 5 click 5 click 5 keyup ctrl; pause 0.5
image "$NOM-molette"
touche ctrl+plus ctrl+plus ctrl+plus; pause 0.5

# The menu under the left button; its second entry takes the place as centre: the Channel.
clic 10200 520; clic 12400 3200; clic 14200 3200 # the module of the chart, its distances and coordinates
clic 8500 2200
attends xdotool search --onlyvisible --class velmaris >/dev/null
image "$NOM-menu"
touche Down Down Return; pause 0.5
clic 8500 2200; touche Down Down Return; pause 0.5
clic 10200 520
image "$NOM-centre"
for place in "4500 5000" "6500 4400" "8200 5300" "9000 6500"; do point $place; done
va 10500 7500
attend_pixels "$NOM-route" '#ff00ff' 150
[ "$(chiffres "$NOM-route")" -ge 60 ] || echoue "le résultat de la visée a disparu"
image "$NOM-route"

# "Reset" wipes the legs, as the chart is always visible; the module goes by its close picture.
clic $((13035 + 1000)) $((4740 + 3300)); pause 0.3
image "$NOM-reset"
[ "$(pixels '#ff00ff' "$NOM-reset")" -le 60 ] || echoue "les branches restent"
quitte "$NOM-quitter"
echo "carte, $LANGUE, $TAILLE : bien"
