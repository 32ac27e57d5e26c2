#!/usr/bin/env bash
# A whole passage by keyboard alone: a first start, a running fix of the Sun, three stars carried to one point, the Moon's
# lit limb, the chart, a star of the sky taken for a sight, the page printed to a PDF file, the other language, exit and
# return.
# Usage: clavier.sh PROGRAMME IMAGES EXEMPLES
PROGRAMME=$1 IMAGES=$2 EXEMPLES=$(realpath "$3")
. "$(dirname "$0")/outils.sh"
gestionnaire
export HOME="$XDG_DATA_HOME/maison" CUPS_SERVER=/nulle/part
mkdir -p "$HOME"
repete() { local touches=(); for _ in $(seq "$2"); do touches+=("$1"); done; touche "${touches[@]}"; }

# "Top" leads the keyboard to the reading; from there every control is so many steps away. With a star the list and
# "Visible" lie on the way to the toolbar.
DETOUR=0
avance() { touche F3; repete Tab "$1"; }
recule() { touche F3; repete shift+Tab $(($1 > JOUR ? $1 + DETOUR : $1)); }
JOUR=13 DRAPEAU=23 ASTRES=26 MULTIPLES=32 ECRAN=34 IMPRIME=37 OUVRE=39 # back, past the complements
MODES=16                                                                       # on, with a result
ouvre() {
  recule $OUVRE; touche space
  attends boite_ouverte "$CHARGE"
  pause 0.3
  tape "$1"
  touche Return
  reprend "$CHARGE"
  DETOUR=$2
}
# Chooses what the keys of the lines do: so many lines under the first, "Enregistrer".
mode_clavier() { avance $MODES; repete Up 6; [ "$1" = 0 ] || repete Down "$1"; }

demarre
image clavier-1-depart
recule $MULTIPLES; touche space
recule $JOUR; tape_bretagne; touche space; pause 0.3
repete Tab 8; repete Up 6; touche F5 # the modes, the first of them
attends stocke 'AS(0)' 0
recule $JOUR; tape_suivante 16 40 00 47 15 04 35 33 41 10
repete Tab 5; touche space; pause 0.3
repete Tab 8; repete Up 6; touche F6
attends stocke 'AS(1)' 0
recule $ECRAN; touche space; touche F5 F6; pause 0.3
mode_clavier 5; touche Tab Down; pause 0.2 # to the point of line 2
touche F5
attend_pixels clavier-2-soleil-soleil '#008000' 100

vise_etoiles "$HOME"
for visee in "1 Altair:F5" "2 Dubhe:F6" "3 Arcturus:F7"; do
  ouvre "$HOME/${visee%:*}.LoP" 2; touche "${visee#*:}"; pause 0.2
done
attends stocke 'Nom(2)' Arcturus
recule $ECRAN; touche space; touche F7 F5 F6; pause 0.3
mode_clavier 5; touche Tab End Up; pause 0.2 # to the point of line 3
touche F5 F6
attend_pixels clavier-3-etoiles '#008000' 100

ouvre "$EXEMPLES/24SEP26 203025.LoP" 0
image clavier-4-lune
recule $ECRAN; touche space F6 F4; pause 0.5
DETOUR=2 # the line brings its star back
image clavier-5-carte

recule $ASTRES; touche space
attends boite_ouverte '^Astres$'
pause 0.5
touche Right Right Up; pause 0.3
image clavier-6-ciel
# Which body the arrows lead to goes by the time of day, and by the body how many controls lie on the way.
REPRISE="$XDG_DATA_HOME/velmaris/reprise.txt"
gardee() {
  local avant
  avant=$(cksum <"$REPRISE")
  pause 1
  [ "$(cksum <"$REPRISE")" = "$avant" ] && [ "$(tail -n 1 "$REPRISE")" = fin ]
}
touche Return; pause 0.3
attends gardee
DETOURS=(0 0 1 2)
DETOUR=${DETOURS[$(sed -n 's/^controle\tOption7\t\([0-3]\)\t1$/\1/p' "$REPRISE")]}
xdotool windowfocus --sync "$FENETRE"
image clavier-6-astre

recule $IMPRIME; touche space
attends boite_ouverte '^Impression$'
pause 0.5
image clavier-7-page
touche Return
repond '^Imprimer$' alt+f ctrl+a
tape "$HOME/page.pdf"
touche Return
attends test -s "$HOME/page.pdf"
revient '^Imprimer$' '^Impression$'
touche Escape
reprend '^Impression$'

recule $DRAPEAU; touche space
image clavier-8-english
quitte clavier-9-quitter
attendu "la langue" "$(reglage Langue)" 1
demarre
image clavier-10-retour
quitte clavier-fin
echo "au clavier seul : bien"
