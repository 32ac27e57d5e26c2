#!/usr/bin/env bash
# The editor of the user's objects in the real window, by keyboard: three objects entered, one taken out, the file
# written, the objects on the chart.
# Usage: objets.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
NOM=objets-$LANGUE
TITRE="^(Objets de|User's obj)"
FICHIER="$XDG_DATA_HOME/velmaris/Utilisateur.txt"
mkdir -p "$(dirname "$FICHIER")" && : >"$FICHIER" # the shipped ones stay out of the way

# Name, radius, degrees and minutes of latitude, its side, the same of longitude; then "Nouveau" by Return.
entree() {
  champ "$1"; champ "$2"; touche Tab
  champ "$3"; champ "$4"; touche "$5" Tab
  champ "$6"; champ "$7"; touche "$8" Tab
  touche Return; pause 0.3
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
clic 10200 520
clic $((11475 + 3000)) $((1080 + 1665)) # "Config" in the module of the chart
attends boite_ouverte "$TITRE"
pause 0.3
entree "Phare de la Jument" 4 48 25 Left 5 8 Right
entree "Ouessant ; mouillage" 2 48 28 Left 5 5 Right
entree "Cap de Bonne-Esperance" 3 34 21 Right 18 28 Left
image "$NOM-trois"
touche Escape
attends boite_fermee "$TITRE"
attendu "le fichier" "$(cat "$FICHIER")" "+48.42 +05.13 4 Phare de la Jument
+48.47 +05.08 2 Ouessant ; mouillage
-34.35 -18.47 3 Cap de Bonne-Esperance"

# The chart around the first two.
xdotool windowfocus --sync "$FENETRE"
clic 10200 520
visee_bretagne; touche space; pause 0.5
image "$NOM-carte"
[ "$(pixels '#006400' "$NOM-carte")" -ge 150 ] || echoue "pas d'objets sur la carte"
quitte "$NOM-quitter"
echo "objets, $LANGUE : bien"
