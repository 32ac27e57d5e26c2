#!/usr/bin/env bash
# Twelve scenes of a passage in the real window, each by day, by dusk and by night: pictures to be looked at. By dusk
# nothing is white, by night all is red under 200 of 255.
# Usage: scenes.sh PROGRAMME IMAGES fr|en
PROGRAMME=$1 IMAGES=$2 LANGUE=$3
. "$(dirname "$0")/outils.sh"
. "$(dirname "$0")/outils_ciel.sh"
gestionnaire
TAILLE=$(xdpyinfo | awk '/dimensions/ {print $2}' | cut -dx -f1)
numero=0

# Parts of a thousand of a window's pixels that are left white after what ImageMagick is asked to do.
part() { import -window "$1" png:- | convert - "${@:2}" -format '%[fx:int(mean*1000+0.5)]' info:; }
blancs() { part "$1" -colorspace gray -threshold 97%; }
rouges_vifs() { part "$1" -channel R -separate +channel -threshold 79%; }
autres_que_rouges() { part "$1" -channel R -evaluate set 0 +channel -separate -evaluate-sequence max -threshold 8%; }
# A scene in a window, by the three lights. The key that goes round ends where it began.
scene() {
  local fenetre=${2:-$FENETRE} nom
  numero=$((numero + 1))
  for vue in jour crepuscule nuit; do
    nom="scene-$(printf '%02d' "$numero")-$1-$LANGUE-$TAILLE-$vue"
    image "$nom"
    case $vue in
      crepuscule) [ "$(blancs "$fenetre")" -eq 0 ] || echoue "$nom : du blanc" ;;
      nuit)
        [ "$(rouges_vifs "$fenetre")" -eq 0 ] || echoue "$nom : trop de lumière"
        [ "$(autres_que_rouges "$fenetre")" -eq 0 ] || echoue "$nom : la nuit n'est pas rouge"
        ;;
    esac
    touche ctrl+n
  done
}

demarre
[ "$LANGUE" = en ] && clic 14700 520
scene depart
touche F4; scene monde
clic 10200 520; scene carte; clic 10200 520

clic 7700 520 # the four lines' module
enregistre_trois_droites
clic 6200 520; touche F6; touche F5; touche F7; pause 0.3
scene droites
clic 7700 520; scene bretagne
clic 5400 520; scene grille
va 8000 6000; for _ in 1 2 3 4 5; do xdotool keydown ctrl click 4 keyup ctrl; done; pause 0.3
scene port
for _ in $(seq 16); do xdotool keydown ctrl click 5 keyup ctrl; done; pause 0.3
scene large
for _ in $(seq 11); do xdotool keydown ctrl click 4 keyup ctrl; done; pause 0.3
clic 5400 520
clic 9400 520; clic 2400 8100; scene panneaux; clic 2400 8100; clic 9400 520
clic 10900 520; clic 11600 520; scene route; clic 10900 520; clic 11600 520; clic 8500 520 # the panel of the sight again

clic 1900 520
attends boite_ouverte '^Impression$'
scene page "$(xdotool search --onlyvisible --name '^Impression$' | head -n 1)"
touche Escape; reprend '^Impression$'
ouvre_ciel
xdotool windowactivate --sync "$CIEL"; pause 0.3
scene ciel "$CIEL"
touche Escape; attends boite_fermee "$TITRE"
xdotool windowfocus --sync "$FENETRE"
attendu "scènes" $numero 12
attendu "la vue du jour est revenue" "$(reglage Nuit)" 0
quitte scenes-quitter
echo "scènes, $LANGUE, $TAILLE : bien"
