#!/usr/bin/env bash
# The log in the real window, by keyboard alone: two sights reduced, the log opened, a row taken up, stored, annotated,
# hidden; filters; the watch; dusk and night.
# Usage: registre.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
LOG='^(Registre des visées|Sight log)$'
DOSSIER="$XDG_DATA_HOME/velmaris"
fenetre_log() { xdotool search --onlyvisible --name "$LOG" | head -n 1; }
contient() { grep -qs -- "$2" "$DOSSIER/$1"; }
lignes() { [ "$(cat "$DOSSIER/$1" 2>/dev/null | wc -l)" -eq "$2" ]; }

# Older journals, as years at sea leave them.
mkdir -p "$DOSSIER"
awk 'BEGIN {
  printf "utc,corps,astre,jour,mois,annee,heure,minute,seconde,latitude_degres,latitude_minutes,hemisphere,longitude_degres,longitude_minutes,cote,lecture_degres,lecture_minutes,lecture_fraction,fraction,collimation,hauteur_oeil,bord,horizon,ho,hc,intercept,azimut,forme,identite,intercept_actuel,ecart\n"
  for (i = 0; i < 400; ++i)
    printf "2025-%02d-%02dT20:00:00Z,Etoiles,%s,%d,%d,2025,19,%d,%d,47,30,N,5,%d,W,%d,34,38,secondes,\"-1,0\",\"2,5\",centre,naturel,45.1,45.0,%.1f,%d.5,2,%016d,%.3f,%.3f\n",
      i % 12 + 1, i % 28 + 1, i % 3 ? "Vega" : "Arcturus", i % 28 + 1, i % 12 + 1, i % 60, i % 60, i % 60, 20 + i % 50, i % 9 - 4, i % 360, i, i % 9 - 4.1 + (i % 7 == 0 ? 2 : 0), (i % 7 == 0 ? 1.9 : -0.1) }' \
  >"$DOSSIER/journal-2025.csv"

demarre
[ "$LANGUE" = en ] && clic 14700 520
visee_bretagne
touche space; pause 0.5 # "Calcul"
attends lignes journal.csv 2

touche ctrl+l
attends boite_ouverte "$LOG"
xdotool windowfocus --sync "$(fenetre_log)"
pause 0.5
touche Home
image "registre-$LANGUE-1-jour"

# A note, a tick for the fix, a row taken up by Return: the log stays.
touche space
touche Tab
tape 'horizon net'
touche Return
attends contient masques.csv 'horizon net'
touche shift+Tab Home Down Return
pause 0.5
boite_ouverte "$LOG" || echoue "le registre s'est fermé"
attends lignes journal.csv 2 # nothing new was observed
# Into line 2: past the note and "Reprendre".
touche Tab Tab Tab Tab space
attends stocke 'AS(1)' 3
xdotool windowfocus --sync "$(fenetre_log)"; pause 0.3

# Hidden: past lines 3 and 4.
touche Tab Tab Tab space
attends contient masques.csv masquee
image "registre-$LANGUE-2-masquee"

# Filters, by dusk; the log opens with the keyboard in its list.
touche Escape; attends boite_fermee "$LOG"
xdotool windowfocus --sync "$FENETRE"
touche ctrl+n ctrl+l
attends boite_ouverte "$LOG"
xdotool windowfocus --sync "$(fenetre_log)"; pause 0.5
touche shift+Tab shift+Tab shift+Tab
tape vega; touche Tab
tape 12/2025; touche Tab Tab
pause 0.5
image "registre-$LANGUE-3-crepuscule"
# The watch, by night: past the note, nine buttons and the list of comparisons; an empty date is now.
touche ctrl+n
for _ in $(seq 13); do touche Tab; done
tape 1,5; touche Return
attends contient montre.csv ',1.5,0,'
for _ in $(seq 12); do touche shift+Tab; done
touche shift+Tab End shift+Up shift+Up
pause 0.3
image "registre-$LANGUE-4-nuit"
touche Escape; attends boite_fermee "$LOG"
xdotool windowfocus --sync "$FENETRE"
touche ctrl+n
quitte "registre-$LANGUE-5-quitter"
echo "registre-$LANGUE : bien"
