#!/usr/bin/env bash
# A sample journey that leaves pictures: what "make run" plays where there is no screen.
# Usage: voyage.sh [PROGRAMME] [IMAGES]
PROGRAMME=${1:-build/bin/velmaris} IMAGES=${2:-build/pictures}
. "$(dirname "$0")/outils.sh"

demarre
image voyage-1-depart
visee_bretagne
image voyage-2-visee
touche space
image voyage-3-droite
clic 5400 520; clic 2400 8100
image voyage-4-details
clic 9400 520; clic 10200 520
image voyage-5-soleil-et-carte
clic 14700 520
image voyage-6-english
quitte voyage-7-quitter
echo "Pictures of the journey: $IMAGES"
