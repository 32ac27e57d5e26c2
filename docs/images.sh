#!/usr/bin/env bash
# The pictures of README and of the desktop's description, from the running program on a screen of 1920x1080: the day of
# the sample sights with its fix on the sheet, the fix in figures, the evening planned, a page of an almanac.
# Usage: images.sh PROGRAMME IMAGES SORTIE EXEMPLES
#   IMAGES    where whole screens are left
#   SORTIE    where the pictures go
#   EXEMPLES  the sample sights
PROGRAMME=$1 IMAGES=$2 SORTIE=$3 EXEMPLES=$4
. "$(dirname "$0")/../tests/e2e/outils.sh"
gestionnaire
POINT='^(Point en chiffres|Fix in figures)$'
PLAN='^(Préparation|Plan)$'
PAPIER="^(Almanach|Almanac|Page du jour|Day's page|Fiche de calcul|Worksheet)$"
JOURNAL="$XDG_DATA_HOME/velmaris/journal.csv"
inscrites() { [ "$(cat "$JOURNAL" 2>/dev/null | wc -l)" -ge "$1" ]; }
devant() { xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "$1" | head -n 1)"; pause 0.5; }
tabule() { for _ in $(seq "$1"); do touche Tab; done; }
recule_de() { for _ in $(seq "$1"); do touche shift+Tab; done; }
# A window alone, or the whole screen without a title.
publie() { convert "$IMAGES/$2.png" ${3:+-crop "$3"} +repage -filter Lanczos -resize "1600x>" -strip -dither None -colors 128 "PNG8:$SORTIE/$1.png"; }
cadre_de() {
  eval "$(xwininfo -id "$(xdotool search --onlyvisible --name "$1" | tail -n 1)" | awk '
    /Absolute upper-left X/ {print "X=" $NF} /Absolute upper-left Y/ {print "Y=" $NF}
    /Width:/ {print "WIDTH=" $NF} /Height:/ {print "HEIGHT=" $NF}')"
  CADRE="${WIDTH}x$((HEIGHT + 20))+$X+$((Y - 20))"
}

n=1
for visee in "$EXEMPLES"/journee/*.LoP; do
  demarre "$visee"
  clic 900 8090 # "Calcul"
  n=$((n + 1))
  attends inscrites $n
  kill -TERM "$PID"
  attends finie
done
demarre "$EXEMPLES/journee/8 Spica.LoP"
[ "${LANGUE:=en}" = en ] && clic 14700 520
pause 1
touche ctrl+g
attends boite_ouverte "$POINT"
devant "$POINT"
tabule 6
champ 21/06/2026; champ 03:30; champ 225; champ 6
touche space
pause 0.5
image point
cadre_de "$POINT"; publie point point "$CADRE"
touche Escape
attends boite_fermee "$POINT"
xdotool windowfocus --sync "$FENETRE"; pause 0.5
image fenetre
publie fenetre fenetre 1920x1056+0+0 # without the strip that the window manager leaves
touche ctrl+k
attends boite_ouverte "$PLAN"
devant "$PLAN"
recule_de 11
champ 21/06/2026; champ 21:50; champ "46 16 N"; champ "7 10 W"
pause 1
image plan
cadre_de "$PLAN"; publie plan plan "$CADRE"
touche Escape
attends boite_fermee "$PLAN"
xdotool windowfocus --sync "$FENETRE"
touche ctrl+shift+a
attends boite_ouverte "$PAPIER"
devant "$PAPIER"
touche shift+Tab Right Right
pause 1
image journee
cadre_de "$PAPIER"; publie journee journee "$CADRE"
touche Left Left Tab
champ 22/06/2026; champ 21/07/2026; touche ctrl+a; tape "50 N, 45 N, 40 N"; touche Return
pause 6
tabule 8; touche space space
pause 1
image almanach
cadre_de "$PAPIER"; publie almanach almanach "$CADRE"
kill -TERM "$PID"
attends finie
