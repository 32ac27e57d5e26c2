#!/usr/bin/env bash
# A run of readings in the real window, by keyboard alone: a mark, seven readings typed of which one is wrong, taken into
# the panel; noon; the clock from the Moon; dusk and night; what was typed after a kill.
# Usage: serie.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
SERIE='^(Série|Run of readings)$'
fenetre_serie() { xdotool search --onlyvisible --name "$SERIE" | head -n 1; }
recule() { for _ in $(seq "$1"); do touche shift+Tab; done; }
avance() { for _ in $(seq "$1"); do touche Tab; done; }
entre() { tape "$1"; touche Return; }
ouvre_serie() {
  touche ctrl+r
  attends boite_ouverte "$SERIE"
  xdotool windowfocus --sync "$(fenetre_serie)"
  pause 0.5
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
ouvre_serie
# The keyboard is at the mark: two of them, and all away again.
touche space; pause 1.2; touche space
image "serie-$LANGUE-1-marques"
recule 4; touche space
# Back past buttons, fields, table and tabs to the date.
recule 21
champ 21/06/2026; champ 09:00; champ "47 30 N"; champ "5 10 W"
touche Tab
champ 225; champ 6; champ 2.5; champ -1; champ 10
avance 6
while read -r heure lecture; do
  entre "$heure"; entre "$lecture"
done <<'LECTURES'
09:00:10 43 12.5
09:01:02 43 20.4
09:02:05 43 36.6
09:02:58 43 39.9
09:04:01 43 50.0
09:05:00 44 00.3
09:06:03 44 09.9
LECTURES
pause 0.5
image "serie-$LANGUE-2-serie"
# "Prendre" is past the reading, seven buttons and the mark.
avance 10; touche Return
pause 0.3
# Back to the tabs: noon, which these readings of the morning tell badly, then the Moon.
recule 16; touche Right
pause 0.5
image "serie-$LANGUE-3-midi"
touche Right
pause 0.5
image "serie-$LANGUE-4-lune"
touche Left Left
touche ctrl+n; pause 0.3
image "serie-$LANGUE-5-crepuscule"
touche ctrl+n; pause 0.3
image "serie-$LANGUE-6-nuit"
touche ctrl+n
touche Escape
attends boite_fermee "$SERIE"
xdotool windowfocus --sync "$FENETRE"
pause 0.3
image "serie-$LANGUE-7-panneau"
# A kill loses nothing: the settings have the readings.
kill -9 "$PID"; attends finie
reglage Serie | grep -c '^L' | grep -qx 7 || echoue "lectures perdues"
demarre
ouvre_serie
image "serie-$LANGUE-8-reprise"
touche Escape
attends boite_fermee "$SERIE"
xdotool windowfocus --sync "$FENETRE"
quitte "serie-$LANGUE-9-quitter"
echo "serie-$LANGUE : bien"
