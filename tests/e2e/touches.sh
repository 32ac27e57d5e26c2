#!/usr/bin/env bash
# The function keys, the modules and the mouse in the real window, and what bad files do to a start.
# Usage: touches.sh PROGRAMME IMAGES
PROGRAMME=$1 IMAGES=$2
. "$(dirname "$0")/outils.sh"
gestionnaire

demarre
visee_bretagne
touche space
touche F10           # below the slider's least value: nothing
touche F9; image touches-zoom-400
touche F3            # the present time, and the reading takes the focus
tape 66; touche Tab
image touches-lecture-66
clic 1000 1200; pause 0.1 # take the module by its title
va 7500 4500; xdotool mousedown 1; pause 0.1
va 7800 4800
va 8100 2100
xdotool mouseup 1
image touches-module-deplace
quitte touches-quitter

# A damaged store: told in a box, set aside, and the program works on.
echo "ceci n'est pas une base" >"$MAGASIN"
demarre_apres_boite touches-magasin-abime
quitte touches-apres-abime
ls "$XDG_DATA_HOME"/velmaris/valeurs.sqlite.abime-* >/dev/null || echoue "le magasin abîmé n'est pas mis de côté"
attendu "un magasin neuf est en place" "$(reglage Lon)" Ouest

# Without data files beside it: one box, and the built-in French.
SEUL="$TRAVAIL/seul"; mkdir "$SEUL"; cp "$PROGRAMME" "$SEUL/velmaris"
PROGRAMME="$SEUL/velmaris"
demarre_apres_boite touches-sans-langue
image touches-francais-interne
quitte touches-fin
echo "touches, modules et mauvais fichiers : bien"
