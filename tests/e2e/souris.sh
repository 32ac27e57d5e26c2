#!/usr/bin/env bash
# A whole passage by mouse alone, from saved sights: a running fix of the Sun, three stars carried to one point, the Moon's
# lit limb, the chart with coordinates and a route, a star of the sky taken for a sight, the page printed to a PDF file,
# the other language, exit and return.
# Usage: souris.sh PROGRAMME IMAGES EXEMPLES
PROGRAMME=$1 IMAGES=$2 EXEMPLES=$(realpath "$3") LANGUE=fr
. "$(dirname "$0")/outils.sh"
. "$(dirname "$0")/outils_ciel.sh"
gestionnaire
export HOME="$XDG_DATA_HOME/maison" CUPS_SERVER=/nulle/part
mkdir -p "$HOME"
touche() { echoue "une touche, à la souris seule : $*"; }

# The folder that the dialog opens in at first: its files stand in this order.
cp "$EXEMPLES/21JUN26 120530.LoP" "$HOME/a.LoP"
awk 'NR == 1 { print "16\r" } NR == 2 { print "40\r" } NR == 3 { print "00\r" } NR == 7 { print "04\r" } NR == 8 { print "35\r" }
  NR == 10 { print "15\r" } NR == 13 { print "41\r" } NR == 14 { print "33\r" } NR == 17 { print "10\r" }
  NR !~ /^(1|2|3|7|8|10|13|14|17)$/' "$HOME/a.LoP" >"$HOME/b.LoP"
vise_etoiles "$HOME"
cp "$EXEMPLES/24SEP26 203025.LoP" "$HOME/lune.LoP"
rangs=("1 Altair" "2 Dubhe" "3 Arcturus" a b lune)

# A click in another window, in 1/1440 inch from its corner; the button may be told.
dans() { xdotool mousemove --window "$1" "$(px "$2")" "$(px "$3")" click --repeat "${5:-1}" --delay 80 "${4:-1}"; pause 0.3; }
fenetre_nommee() { xdotool search --onlyvisible --name "$1" | head -n 1; }
ouvre() {
  local i
  for i in "${!rangs[@]}"; do [ "${rangs[$i]}" = "$1" ] && break; done
  clic 1100 500
  attends boite_ouverte "$CHARGE"
  pause 0.4
  dans "$(fenetre_nommee "$CHARGE")" 900 $((1215 + 210 * i)) 1 2
  attends boite_fermee "$CHARGE"
  pause 0.3
}
DROITES=(1590 2010 2430 2850)
droite() { clic 3600 "${DROITES[$1]}"; pause 0.2; }
# Presses the button of a box, by its place from the lower right corner in 1/1440 inch; a picture may be named.
presse_boite() {
  attends boite_ouverte "$1"
  pause 0.4
  local WIDTH HEIGHT
  eval "$(xdotool getwindowgeometry --shell "$(fenetre_nommee "$1")" | grep -E '^(WIDTH|HEIGHT)=')"
  [ -z "${4:-}" ] || image "$4"
  xdotool mousemove --window "$(fenetre_nommee "$1")" $((WIDTH - $(px "$2"))) $((HEIGHT - $(px "$3"))) click 1
  pause 0.3
}

demarre
image souris-1-depart
ouvre a; image souris-2-ouvert; droite 0; attends stocke 'AS(0)' 0
ouvre b; droite 1; attends stocke 'AS(1)' 0
attendu "la seconde visée" "$(reglage 'T3(1)'):$(reglage 'T4(1)') $(reglage 'T13(1)') $(reglage 'T7(1)')" "16:40 33 35"
clic 6200 520; droite 0; droite 1
mode $MODE_DROITE
clic 6045 4762; pause 0.4
clic 6045 $((4762 + 330)); pause 0.2
droite 0
attend_pixels souris-2-soleil-soleil '#008000' 100

for i in 0 1 2; do ouvre "${rangs[$i]}"; droite $i; done
attends stocke 'Nom(2)' Arcturus
clic 6200 520; droite 1; droite 0; droite 2
mode $MODE_DROITE; droite 0; droite 2
attend_pixels souris-3-etoiles '#008000' 100

ouvre lune
image souris-4-lune

# The chart: coordinates under the pointer, a route of two legs by the right button, a new centre by the menu.
clic 6200 520; droite 1
clic 10200 520
image souris-5-module
clic 12400 3200; clic 14200 3200
va 8200 5000; xdotool click 3; pause 0.3
va 9500 7200; xdotool click 3; pause 0.3
va 11000 8000
attend_pixels souris-5-route '#ff00ff' 80
clic 12400 3200; clic 14200 3200; clic 10200 520
clic 8500 5200
image souris-5-menu
xdotool mousemove_relative "$(px 900)" "$(px 600)" click 1; pause 0.5
image souris-5-centre
clic 6200 520; droite 1

# The sky: Capella, which never sets here, taken for a sight.
clic 12400 520
attends fenetre_ciel
pause 0.5
mesure_ciel
place=$("$(dirname "$PROGRAMME")/velmaris-calcul" horizon "$(date -u +%d/%m/%Y)" "$(date -u +%H:%M:%S)" 79.68 46.02 47.667 -5.167 |
  sed 's/.*"texte":"\([^"]*\)".*/\1/')
horizon "${place%X*}" "${place#*X}"
image souris-6-ciel
xdotool click 1; pause 0.7
clic 700 8165; pause 0.3 # "Calcul"
mode $MODE_ENREGISTRE; droite 3
attends stocke 'Nom(3)' Capella
image souris-6-astre
clic 12400 520; pause 0.5 # the sky comes to the front again, and is closed
bas 11900 370
attends boite_fermee "$TITRE"

clic 1900 520
attends boite_ouverte '^Impression$'
pause 0.5
TAPIS=20 # pixels of the mat around the page
xdotool mousemove --window "$(fenetre_nommee '^Impression$')" $(($(px 13725) + TAPIS)) $(($(px 3270) + TAPIS)) click 1
presse_boite '^Imprimer$' 2055 345 souris-7-imprimante
attends test -s "$HOME/Velmaris.pdf"
attends boite_fermee '^Imprimer$'
dans "$(fenetre_nommee '^Impression$')" 4500 900
attends boite_fermee '^Impression$'

clic 14700 520
image souris-8-english
clic 13900 520
presse_boite "$EXIT_BOX" 2250 375 souris-9-quitter
attends finie
wait "$PID" || echoue "le programme finit par une erreur"
attendu "la langue" "$(reglage Langue)" 1
demarre
image souris-10-retour
clic 13900 520
presse_boite "$EXIT_BOX" 2250 375
attends finie
echo "à la souris seule : bien"
