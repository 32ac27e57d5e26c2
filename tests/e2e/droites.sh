#!/usr/bin/env bash
# A running fix in the real window: three sights of the Sun stored and shown, one carried to another and one to the
# dead-reckoning point, the zoom changed; then a sight saved, erased, opened again and stored.
# Usage: droites.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
TAILLE=$(xdpyinfo | awk '/dimensions/ {print $2}' | cut -dx -f1)
NOM=droites-$LANGUE-$TAILLE
SAUVE="^(Sauvegarder le|Save the) "
export HOME="$TRAVAIL/maison"
mkdir -p "$HOME"


demarre
[ "$LANGUE" = en ] && clic 14700 520
clic 7700 520 # the module of the four lines

# The noon sight first, then the morning's and the afternoon's, each stored by its key.
enregistre_trois_droites
attendu "la première droite" "$(reglage 'T3(0)'):$(reglage 'T4(0)') $(reglage 'T13(0)') $(reglage 'Nom(0)')" "08:30 37 $([ "$LANGUE" = en ] && echo Sun || echo Soleil)"
attendu "la deuxième droite" "$(reglage 'T3(1)'):$(reglage 'T4(1)') $(reglage 'T13(1)')" "12:05 65"

# All three on one sheet, around the noon position; wide figures of ticks go at 250 miles.
clic 6200 520 # clear the screen
for _ in 1 2 3 4 5; do touche --window "$FENETRE" F10; done
touche F6; touche F5; touche F7
attend_pixels "$NOM-affichees" '#ff0000' 300

# The morning's line carried to the afternoon's point: green, beside its old place.
avant=$(pixels '#008000' "$NOM-affichees")
mode $MODE_DROITE; clic 6045 4762; pause 0.3; touche Home Down Down Return; pause 0.2
touche F5
attend_pixels "$NOM-transportee" '#008000' $((avant + 100))

# A change of zoom brings every line back in its place.
touche F9
attend_pixels "$NOM-zoom-400" '#008000' $((avant + 100))
[ "$(pixels '#ff0000' "$NOM-zoom-400")" -ge 200 ] || echoue "les droites ne reviennent pas"
touche F10
attend_pixels "$NOM-zoom-200" '#008000' $((avant + 100))

# Dead reckoning from the present position, and the noon line carried there with its run in red dots.
clic 10900 520
clic 4665 5865; champ 245; champ 6
clic 5895 6210; pause 0.3
image "$NOM-estime"
mode $MODE_ESTIME; touche F6; pause 0.3
clic 10900 520 # the module goes, the sheet shows
attend_pixels "$NOM-estime-transportee" '#008000' $((avant + 200))

# Saved, erased, opened again, stored: by keyboard once the dialog is there.
clic 400 500
attends boite_ouverte "$SAUVE"
image "$NOM-sauve"
touche Return; attends boite_fermee "$SAUVE"; reprend "$SAUVE"
FICHIER=$(ls "$HOME"/*.LoP)
attendu "le nom proposé" "$(basename "$FICHIER")" "21JUN26 164000.LoP"
attendu "les lignes du fichier" "$(wc -l <"$FICHIER")" 21
mode $MODE_EFFACE; touche F7
repond "$([ "$LANGUE" = en ] && echo '^Warning$' || echo '^Attention$')" Tab Return; pause 0.3
attends stocke 'Nom(2)' '(F7)'
attendu "la droite est effacée" "$(reglage 'T3(2)')$(reglage 'AS(2)')" ""
reprend Attention
clic 1100 500
attends boite_ouverte "$CHARGE"
touche Tab Down; pause 0.2 # the list, its first file
image "$NOM-ouvre"
touche Return; attends boite_fermee "$CHARGE"; reprend "$CHARGE"
touche F7; attends stocke 'T3(2)' 16
attendu "la droite rangée à nouveau" "$(reglage 'T13(2)') $(reglage 'T12(2)') $(reglage 'T25(2)')" "33 41 10"
image "$NOM-rangee"

quitte "$NOM-quitter"
attendu "le journal" "$(wc -l <"$XDG_DATA_HOME/velmaris/journal.csv")" 4
demarre
image "$NOM-retour"
quitte "$NOM-fin"
rm -rf "$HOME"
echo "droites, $LANGUE, $TAILLE : bien"
