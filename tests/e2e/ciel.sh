#!/usr/bin/env bash
# The sky in the real window, from a place where Sirius crosses the meridian just now: opened beside the main window,
# Orion lit, both charts by day and by night, Sirius clicked and seen chosen and stored, Escape.
# Usage: ciel.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
. "$(dirname "$0")/outils_ciel.sh"
gestionnaire
TAILLE=$(xdpyinfo | awk '/dimensions/ {print $2}' | cut -dx -f1)
NOM=ciel-$LANGUE-$TAILLE

# Pixels of the window's inside, without its last rows, that have green or blue.
autres() {
  convert "$IMAGES/$1.png" -crop $((WIDTH - 20))x$((HEIGHT - 60))+$((X + 10))+$((Y + 20)) +repage \
    -channel R -evaluate set 0 +channel -separate -evaluate-sequence max -threshold 7% -format '%[fx:int(mean*w*h+0.5)]' info:
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
ouvre_ciel
image "$NOM-horizontale"
[ "$(pixels '#ffff00' "$NOM-horizontale")" -ge 300 ] || echoue "pas de constellations"

bas 6960 840 # the equatorial chart
# Rigel under the pointer lights Orion up, until the sky is drawn anew by the clock: then it is pointed at again.
for essai in 1 2 3 4 5; do
  equateur 78.9 -8.2
  image "$NOM-orion"
  allumes=$(pixels '#ff0000' "$NOM-orion")
  [ "$allumes" -ge 60 ] && break
done
[ "$allumes" -ge 60 ] || echoue "Orion ne s'allume pas"
touche ctrl+n ctrl+n; pause 0.5
image "$NOM-orion-nuit"
[ "$(autres "$NOM-orion-nuit")" -eq 0 ] || echoue "la nuit n'est pas rouge"
bas 6960 510
horizon 180 43.2 # Sirius
image "$NOM-sirius-nuit"
touche ctrl+n; pause 0.5
attendu "le jour est revenu" "$(reglage Nuit)" 0

# A click takes it for the sight.
horizon 180 43.2
xdotool click 1; pause 0.7
image "$NOM-choisie"
xdotool windowfocus --sync "$FENETRE"
clic 7700 520
mode $MODE_ENREGISTRE; touche F5
attends stocke 'AS(0)' 3
image "$NOM-rangee"
attendu "l'étoile est celle que l'on a touchée, par son rang" "$(reglage 'Combo6(0)')" 135

# The keyboard in the sky's window: an arrow, Escape.
xdotool windowactivate --sync "$CIEL" 2>/dev/null || xdotool windowfocus --sync "$CIEL"
touche Right Right Up
image "$NOM-fleches"
touche Escape
attends boite_fermee "$TITRE"
xdotool windowfocus --sync "$FENETRE"
quitte "$NOM-quitter"
echo "ciel, $LANGUE, $TAILLE : bien"
