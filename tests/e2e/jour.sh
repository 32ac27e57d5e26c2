#!/usr/bin/env bash
# A whole day's work in the real window by keyboard alone: the twilight planned, three stars reduced, the fix in figures
# kept, a run of readings made one sight of the Sun, the day's page with its weather. A hand that strikes two keys a
# second is done in under four minutes: its keys are counted, for a machine types at its own pace.
# Usage: jour.sh PROGRAMME IMAGES EXEMPLES
PROGRAMME=$1 IMAGES=$2 EXEMPLES=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
PLAN='^Préparation$' SERIE='^Série$' POINT='^Point en chiffres$'
PAPIER='^(Almanach|Fiche de calcul|Page du jour|Feuille de tracé)$'
DOSSIER="$XDG_DATA_HOME/velmaris"
FRAPPES_PERMISES=480 # four minutes of two a second

FRAPPES=0
frappe() { FRAPPES=$((FRAPPES + $#)); touche "$@"; }
ecrit() { FRAPPES=$((FRAPPES + ${#1})); tape "$1"; }
case_de() { ecrit "$1"; frappe Tab; }
avance() { for _ in $(seq "$1"); do frappe Tab; done; }
recule() { for _ in $(seq "$1"); do frappe shift+Tab; done; }
ouvre() { # a window by its key
  frappe "$1"
  attends boite_ouverte "$2"
  xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "$2" | head -n 1)"
  pause 0.5
}
ferme() { frappe Escape; reprend "$1"; }
visees() { [ "$(cat "$DOSSIER/journal.csv" 2>/dev/null | wc -l)" -eq $(($1 + 1)) ]; }

cp -r "$EXEMPLES/journee" "$HOME/j"
demarre

# The evening before: the sky at twilight, and the sets that cross best.
ouvre ctrl+k "$PLAN"
recule 11
case_de 21/06/2026; case_de 03:40; case_de "47 30 N"; case_de "5 10 W"
avance 2
case_de 225; case_de 6; case_de 2.5; case_de -1
pause 0.5
frappe Right Right
image jour-1-jeux
frappe Left Left
ferme "$PLAN"

# Three stars of the morning.
rang=0
for etoile in '1 Vega' '2 Altair' '3 Capella'; do
  frappe ctrl+o
  attends boite_ouverte "$CHARGE"
  pause 0.3
  ecrit "$HOME/j/$etoile.LoP"; frappe Return
  reprend "$CHARGE"
  frappe Return
  rang=$((rang + 1))
  attends visees $rang
done
image jour-2-etoiles

# Their fix, with the leg of the day.
ouvre ctrl+g "$POINT"
avance 6
case_de 21/06/2026; case_de 03:30; case_de 225; case_de 6
frappe space
pause 0.5
avance 12
frappe space
attends test -s "$DOSSIER/points.csv"
grep -q "T03:44:00Z,47.49[0-9]*,-5.17[0-9]*,.*,actuelle," "$DOSSIER/points.csv" || echoue "le point n'est pas celui du guide"
image jour-3-point
ferme "$POINT"

# Five readings of the Sun are one sight, which goes into the panel and is reduced.
ouvre ctrl+r "$SERIE"
recule 25
case_de 21/06/2026; case_de 09:00; case_de "47 30 N"; case_de "5 10 W"
avance 1
case_de 225; case_de 6; case_de 2.5; case_de -1; case_de 10
avance 1
ecrit Soleil # after the star of the panel
avance 5
while read -r heure lecture; do
  ecrit "$heure"; frappe Return; ecrit "$lecture"; frappe Return
done <<'LECTURES'
09:00:10 43 12.5
09:01:02 43 20.4
09:02:58 43 39.9
09:04:01 43 50.0
09:05:00 44 00.3
LECTURES
pause 0.5
image jour-4-serie
avance 10; frappe Return
ferme "$SERIE"
frappe Return
attends visees 4
attendu "la série" "$(tail -n 1 "$DOSSIER/journal.csv" | cut -d, -f3)" Soleil

# The day on paper.
ouvre ctrl+shift+a "$PAPIER"
frappe shift+Tab
frappe Right Right
pause 0.5
avance 1
case_de "SW 4"; case_de belle
image jour-5-page
frappe shift+Tab
ferme "$PAPIER"
echo "$FRAPPES frappes, $SECONDS secondes de cette machine"
[ $FRAPPES -le $FRAPPES_PERMISES ] || echoue "$FRAPPES frappes"
quitte jour-6-quitter
