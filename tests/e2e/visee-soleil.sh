#!/usr/bin/env bash
# A first sight of the Sun in the real window, by keyboard: typed, reduced, drawn, left and found again.
# Usage: visee-soleil.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
TAILLE=$(xdpyinfo | awk '/dimensions/ {print $2}' | cut -dx -f1)

# Pixels of one colour, told as xx xx xx, on the last picture: the casing of the line of position, or its yellow.
jaunes() { convert "$IMAGES/$1.png" -fill black +opaque '#ffff00' -fill white -opaque '#ffff00' -format '%[fx:int(mean*w*h+0.5)]' info:; }

demarre
[ "$LANGUE" = en ] && clic 14700 520
image "visee-$LANGUE-$TAILLE-vide"
attendu "aucune droite avant le calcul" "$(jaunes "visee-$LANGUE-$TAILLE-vide")" 0
visee_bretagne
touche space
droite_tracee() { image "visee-$LANGUE-$TAILLE-reduite"; [ "$(jaunes "visee-$LANGUE-$TAILLE-reduite")" -gt 100 ]; }
attends droite_tracee
clic 5400 520   # the grid
clic 9400 520   # the Sun's module
clic 2400 8100  # the details
image "visee-$LANGUE-$TAILLE-complete"

# No keeps the window and stores nothing; so does a close request.
touche F2; repond "$EXIT_BOX" Escape; reprend "$EXIT_BOX"
kill -0 "$PID" || echoue "Non ferme le programme"
attendu "rien n'est conservé après Non" "$(reglage T8)" ""
attendu "la date au journal" "$(tail -n 1 "$XDG_DATA_HOME/velmaris/journal.csv" | cut -d, -f4-6)" 21,06,2026
touche alt+F4; repond "$EXIT_BOX" Escape; reprend "$EXIT_BOX"
kill -0 "$PID" || echoue "Non à la fermeture ferme le programme"

quitte "visee-$LANGUE-$TAILLE-quitter"
attendu latitude "$(reglage T8) $(reglage T9) $(reglage Hem)" "47 30 Nord"
attendu longitude "$(reglage T6) $(reglage T7) $(reglage Lon)" "05 10 Ouest"
attendu "hauteur de l'oeil" "$(reglage T10)" "2,5"
attendu langue "$(reglage Langue)" "$([ "$LANGUE" = en ] && echo 1 || echo 0)"

demarre
image "visee-$LANGUE-$TAILLE-retour"
quitte "visee-$LANGUE-$TAILLE-fin"
attendu "la position revient" "$(reglage T8) $(reglage T9) $(reglage T6) $(reglage T7)" "47 30 05 10"
[ -s "$XDG_DATA_HOME/erreurs.txt" ] && grep -qi "erreur\|warning\|critical" "$XDG_DATA_HOME/erreurs.txt" && echoue "$(cat "$XDG_DATA_HOME/erreurs.txt")"
echo "visée du Soleil, $LANGUE, $TAILLE : bien"
