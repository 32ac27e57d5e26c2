#!/usr/bin/env bash
# A sample journey that leaves pictures: what "make run" plays where there is no screen.
# Usage: voyage.sh [PROGRAMME] [IMAGES]
PROGRAMME=${1:-build/bin/velmaris} IMAGES=${2:-build/pictures}
. "$(dirname "$0")/outils.sh"

demarre
image voyage-1-depart
touche F4; pause 0.3
image voyage-1-monde
visee_bretagne
image voyage-2-visee
touche space
image voyage-3-droite
clic 5400 520; clic 2400 8100
image voyage-4-details
clic 9400 520; clic 10200 520
image voyage-5-soleil-et-carte
clic 9400 520; clic 10200 520
clic 7700 520
mode $MODE_ENREGISTRE; touche F5; pause 0.3
visee_suivante 16 40 00 47 15 04 35 33 41 10
touche Tab Tab Tab Tab Tab; touche space; pause 0.3
mode $MODE_ENREGISTRE; touche F6; pause 0.3
image voyage-6-deux-droites-rangees
clic 6200 520; touche F5; touche F6; pause 0.3
image voyage-7-deux-droites
mode $MODE_DROITE; clic 6045 4762; pause 0.3; touche Home Down Return; pause 0.3
touche F5
image voyage-8-transport
clic 14700 520
image voyage-9-english
quitte voyage-10-quitter
echo "Pictures of the journey: $IMAGES"
