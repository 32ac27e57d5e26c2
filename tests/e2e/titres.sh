#!/usr/bin/env bash
# Under a window manager each window beside the main one opens with both title and foot on the screen.
# Usage: titres.sh PROGRAMME IMAGES
PROGRAMME=$1 IMAGES=$2 LANGUE=fr
. "$(dirname "$0")/outils.sh"
. "$(dirname "$0")/outils_ciel.sh"
gestionnaire
ECRAN=$(xdpyinfo | awk '/dimensions/ {print $2}' | cut -dx -f2)

# The frame that the manager has put around a window: its first and its last row of the screen. The window's own row is
# asked of the screen: of a framed window xdotool counts the frame twice.
cadre() {
  local numero haut bas Y HEIGHT
  numero=$(xdotool search --onlyvisible --name "$1" | tail -n 1)
  read -r haut bas < <(xprop -id "$numero" _NET_FRAME_EXTENTS | tr -d , | awk '{ print $5, $6 }')
  eval "$(xwininfo -id "$numero" | awk '/Absolute upper-left Y/ {print "Y=" $NF} /Height:/ {print "HEIGHT=" $NF}')"
  [ "$haut" -gt 5 ] || echoue "$1 : le gestionnaire n'a pas mis de titre"
  [ $((Y - haut)) -ge 0 ] || echoue "$1 : le titre sort de l'écran de $((haut - Y)) pixels"
  [ $((Y + HEIGHT + bas)) -le "$ECRAN" ] || echoue "$1 : le pied sort de l'écran de $((Y + HEIGHT + bas - ECRAN)) pixels"
}

demarre
clic 1900 520
attends boite_ouverte '^Impression$'
image titres-page
cadre '^Impression$'
touche Escape
reprend '^Impression$'
ouvre_ciel
image titres-ciel
cadre "$TITRE"
touche Escape
xdotool windowfocus --sync "$FENETRE"
pause 0.3
quitte titres-quitter
