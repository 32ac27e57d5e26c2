#!/usr/bin/env bash
# The sky in the real window, from a place where Sirius crosses the meridian just now: opened beside the main window,
# Orion lit, both charts by day and by night, Sirius clicked and seen chosen and stored, Escape.
# Usage: ciel.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
openbox 2>/dev/null &
sleep 0.5
TAILLE=$(xdpyinfo | awk '/dimensions/ {print $2}' | cut -dx -f1)
NOM=ciel-$LANGUE-$TAILLE
[ "$LANGUE" = en ] && TITRE='^Sky$' || TITRE='^Astres$'
stocke() { [ "$(reglage "$1")" = "$2" ]; }

# West longitude, in whole degrees, of the meridian that Sirius crosses: from -180 to 179.
LON=$(awk -v t="$(date +%s)" 'BEGIN {
  g = 280.46062 + 360.98564737 * (t / 86400 + 2440587.5 - 2451545); l = g - 101.6
  l -= 360 * int(l / 360); if (l > 180) l -= 360; if (l <= -180) l += 360; printf "%d", l }')

# The sky's window: sets CIEL, and W and H of its chart in pixels.
fenetre_ciel() { CIEL=$(xdotool search --onlyvisible --pid "$PID" --name "$TITRE" 2>/dev/null | tail -n 1); [ -n "$CIEL" ]; }
mesure_ciel() {
  eval "$(xdotool getwindowgeometry --shell "$CIEL" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
  W=$((WIDTH - 2300 / 15)) H=$((HEIGHT - 2725 / 15))
}
survole() { xdotool mousemove --window "$CIEL" "$1" "$2"; sleep 0.2; xdotool mousemove_relative 1 0; sleep 0.4; }
# Goes to a place of the sky: horizontal az h, or equatorial right ascension and declination, all in degrees.
horizon() { survole $(awk -v w=$W -v h=$H -v a="$1" -v b="$2" 'BEGIN {printf "%d %d", 140 + a / 360 * w, 8 + h - b / 90 * h}'); }
equateur() { survole $(awk -v w=$W -v h=$H -v a="$1" -v b="$2" 'BEGIN {printf "%d %d", 140 + w - a / 360 * w, 8 + h - (b + 90) / 180 * h}'); }
# Clicks in the bottom strip, in 1/1440 inch from its own corner.
bas() { xdotool mousemove --window "$CIEL" $((WIDTH - (200 + 12900 - $1) / 15)) $((8 + H + (255 + $2) / 15)) click 1; sleep 0.5; }

# Pixels of the window's inside, without its last rows, that have green or blue.
autres() {
  convert "$IMAGES/$1.png" -crop $((WIDTH - 20))x$((HEIGHT - 60))+$((X + 10))+$((Y + 20)) +repage \
    -channel R -evaluate set 0 +channel -separate -evaluate-sequence max -threshold 7% -format '%[fx:int(mean*w*h+0.5)]' info:
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
clic 300 2850
touche Tab Tab Tab Tab Tab Tab Tab
champ 30; champ 00; touche Left Tab
champ $((LON < 0 ? -LON : LON)); champ 00
[ $LON -lt 0 ] && touche Left
touche F3
clic 12400 520
attends fenetre_ciel
sleep 0.5
mesure_ciel
image "$NOM-horizontale"
[ "$(pixels '#ffff00' "$NOM-horizontale")" -ge 300 ] || echoue "pas de constellations"

bas 6960 840 # the equatorial chart
equateur 78.9 -8.2 # Rigel
image "$NOM-orion"
[ "$(pixels '#ff0000' "$NOM-orion")" -ge 60 ] || echoue "Orion ne s'allume pas"
touche ctrl+n; sleep 0.5
image "$NOM-orion-nuit"
[ "$(autres "$NOM-orion-nuit")" -eq 0 ] || echoue "la nuit n'est pas rouge"
bas 6960 510
horizon 180 43.2 # Sirius
image "$NOM-sirius-nuit"
touche ctrl+n; sleep 0.5
attendu "le jour est revenu" "$(reglage Nuit)" 0

# A click takes it for the sight.
horizon 180 43.2
xdotool click 1; sleep 0.7
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
