# Helpers for journeys in the sky's window, which stands over a place where Sirius crosses the meridian just now.
# Sourced after outils.sh; needs LANGUE.
[ "$LANGUE" = en ] && TITRE='^Sky$' || TITRE='^Astres$'

# West longitude, in whole degrees, of the meridian that Sirius crosses: from -180 to 179.
LON=$(awk -v t="$(date +%s)" 'BEGIN {
  g = 280.46062 + 360.98564737 * (t / 86400 + 2440587.5 - 2451545); l = g - 101.6
  l -= 360 * int(l / 360); if (l > 180) l -= 360; if (l <= -180) l += 360; printf "%d", l }')

# The sky's window: sets CIEL, and W and H of its chart in pixels.
fenetre_ciel() { CIEL=$(xdotool search --onlyvisible --pid "$PID" --name "$TITRE" 2>/dev/null | tail -n 1); [ -n "$CIEL" ]; }
mesure_ciel() {
  eval "$(xdotool getwindowgeometry --shell "$CIEL" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
  W=$((WIDTH - $(px 2300))) H=$((HEIGHT - $(px 2725))) GAUCHE=$(px 2100) HAUT=$(px 120)
}
survole() { xdotool mousemove --window "$CIEL" "$1" "$2"; pause 0.2; xdotool mousemove_relative 1 0; pause 0.4; }
# Goes to a place of the sky: horizontal az h, or equatorial right ascension and declination, all in degrees.
horizon() { survole $(awk -v w=$W -v h=$H -v x=$GAUCHE -v y=$HAUT -v a="$1" -v b="$2" 'BEGIN {printf "%d %d", x + a / 360 * w, y + h - b / 90 * h}'); }
equateur() { survole $(awk -v w=$W -v h=$H -v x=$GAUCHE -v y=$HAUT -v a="$1" -v b="$2" 'BEGIN {printf "%d %d", x + w - a / 360 * w, y + h - (b + 90) / 180 * h}'); }
# Clicks in the bottom strip, in 1/1440 inch from its own corner.
bas() { xdotool mousemove --window "$CIEL" $((WIDTH - $(px $((13100 - $1))))) $((HAUT + H + $(px $((255 + $2))))) click 1; pause 0.5; }

# Types that place and the present moment into the panel of a sight, and opens the sky's window.
ouvre_ciel() {
  clic 300 2850
  touche Tab Tab Tab Tab Tab Tab Tab
  champ 30; champ 00; touche Left Tab
  champ $((LON < 0 ? -LON : LON)); champ 00
  [ $LON -ge 0 ] || touche Left
  touche F3
  clic 12400 520
  attends fenetre_ciel
  pause 0.5
  mesure_ciel
}
