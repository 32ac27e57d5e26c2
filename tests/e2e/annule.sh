#!/usr/bin/env bash
# Nothing typed is lost: an empty line that has emptied the panel, a stored line erased, a star's sight that ends the
# program, a kill; each is taken back or up in the real window.
# Usage: annule.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
gestionnaire
REPRISE="$XDG_DATA_HOME/velmaris/reprise.txt"
ATTENTION_BOX='^(Attention|Warning)$' ERREUR_BOX='^(Erreur|Error)$'

# What the recovery file holds of a control.
tenu() { [ "$(tail -n 1 "$REPRISE" 2>/dev/null)" = fin ] && sed -n "s/^controle\t$1\t-1\t//p" "$REPRISE"; }
tient() { [ "$(tenu "$1")" = "$2" ]; }
# What the recovery file holds of controls and sheet; a reduction leaves figures of its own before it fails.
seance() { grep -E '^(controle|feuille|droites|transports)' "$REPRISE"; }
rendu() { [ "$(seance)" = "$1" ]; }

demarre
[ "$LANGUE" = en ] && clic 14700 520
clic 7700 520 # the four lines
visee_bretagne
clic 700 8300; attends tient Text13 65
image "annule-$LANGUE-1-visee"

# An empty line empties the panel, told once; undone, and done again.
touche F6
repond "$ERREUR_BOX" Return
reprend "$ERREUR_BOX"
attends tient Text13 ''
boite_ouverte "$ERREUR_BOX" && echoue "dit deux fois"
touche ctrl+z; attends tient Text13 65
image "annule-$LANGUE-2-rendu"
touche ctrl+shift+z; attends tient Text13 ''
touche ctrl+z; attends tient Text13 65
attendu "les minutes" "$(tenu Text12)" 34

# A line stored, erased, and there again.
clic 3200 $MODE_ENREGISTRE; touche F5; attends stocke 'T3(0)' 12
clic 3200 $MODE_EFFACE; touche F5
attends boite_ouverte "$ATTENTION_BOX"
pause 0.3
touche Left Return
reprend "$ATTENTION_BOX"
attends stocke 'T3(0)' ''
image "annule-$LANGUE-3-efface"
touche ctrl+z; attends stocke 'T3(0)' 12
attendu "la lecture gardée" "$(reglage 'T13(0)')" 65
image "annule-$LANGUE-4-droite"

# A star without its eye height: framed, then the program's report, "Recommencer", and all as it was.
clic 1700 1800; pause 0.3
touche F3; tape 40; touche Tab; tape 20; touche Tab
clic 2700 7600; touche ctrl+a BackSpace Tab; pause 0.3
clic 1000 2115; touche Down Return; pause 0.3
image "annule-$LANGUE-5-cadres"
avant=$(seance)
clic 700 8300
attends boite_ouverte "$TOLD_BOX"
image "annule-$LANGUE-6-rapport"
touche Tab space
attends boite_fermee "$TOLD_BOX"
attends fenetre_principale
xdotool windowfocus --sync "$FENETRE"
attends rendu "$avant"
boite_ouverte "$REPRISE_BOX" && echoue "une question après « Recommencer »"
image "annule-$LANGUE-7-recommence"

# Killed, and taken up by the next one, once.
avant=$(seance)
kill -KILL "$PID"; attends finie
REPRISE_VOULUE=Return demarre
attends rendu "$avant"
image "annule-$LANGUE-8-repris"
quitte "annule-$LANGUE-9-quitter"
[ ! -e "$REPRISE" ] || echoue "une reprise après une fin ordonnée"
demarre
boite_ouverte "$REPRISE_BOX" && echoue "demandé deux fois"
kill -KILL "$PID"; attends finie
[ ! -e "$REPRISE" ] || echoue "une reprise sans rien à reprendre"
demarre
quitte "annule-$LANGUE-9-quitter"
echo "annule-$LANGUE : bien"
