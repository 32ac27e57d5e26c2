#!/usr/bin/env bash
# A star, a planet and the Moon in the real window: opened, reduced, stored, live; then a star's sight without a height
# of eye, which ends the program with its report and the sight kept.
# Usage: astres.sh PROGRAMME IMAGES fr|en EXEMPLES
PROGRAMME=$1 IMAGES=$2 LANGUE=$3 EXEMPLES=$4
. "$(dirname "$0")/outils.sh"
gestionnaire
TAILLE=$(xdpyinfo | awk '/dimensions/ {print $2}' | cut -dx -f1)
NOM=astres-$LANGUE-$TAILLE

# Opens a sample sight by its path and stores it in a line.
ouvre() {
  ouvre_visee "$EXEMPLES/$1"
  image "$NOM-$3"
  touche "$2"
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
clic 9400 520 # the live panel
ouvre "14FEV26 201015.LoP" F5 etoile
attends stocke 'AS(0)' 3
attendu "l'étoile est rangée par son rang" "$(reglage 'Nom(0)')" Sirius
ouvre "30JUN26 204020.LoP" F6 planete
attends stocke 'AS(1)' 2
attendu "la planète est rangée par son rang" "$(reglage 'Combo7(1)') $(reglage 'Nom(1)')" "0 Venus"
ouvre "24SEP26 203025.LoP" F7 lune
attends stocke 'AS(2)' 1
clic 2400 8100 # the details
image "$NOM-lune-details"
touche F5; pause 0.3 # the star again, from its line

# Without a height of eye the star's sight fails: told, kept, status 1.
clic 2700 7590; touche ctrl+a BackSpace Tab
clic 700 8165
attends boite_ouverte "$TOLD_BOX"
image "$NOM-fin"
touche Return
attends finie
wait "$PID" && echoue "le programme devait finir par une erreur" || true
attendu "la visée est gardée" "$(wc -l <"$XDG_DATA_HOME/velmaris/secours.LoP")" 22
echo "étoile, planète et Lune, $LANGUE, $TAILLE : bien"
