#!/usr/bin/env bash
# What a desktop does with the program: a sight's file pressed twice, the guide, the links of the about box where nothing
# opens them, the command line.
# Usage: bureau.sh PROGRAMME IMAGES fr|en EXEMPLES
PROGRAMME=$1 IMAGES=$2 LANGUE=$3 EXEMPLES=$4
. "$(dirname "$0")/outils.sh"

# A desktop that opens nothing, but notes what it was asked.
export HOME="$XDG_DATA_HOME/maison"
mkdir -p "$HOME/bin"
printf '#!/bin/sh\necho "$1" >>"$HOME/ouvert.txt"\nexit 3\n' >"$HOME/bin/xdg-open"
printf '#!/bin/sh\nexit 0\n' >"$HOME/bin/xdg-mime"
chmod +x "$HOME"/bin/*
export PATH="$HOME/bin:$PATH"
[ "$LANGUE" = en ] && APROPOS='^About$' || APROPOS='^A propos$'
demande() { tail -n 1 "$HOME/ouvert.txt"; }
titre_dit() { xdotool getwindowname "$FENETRE" | grep -q "$1"; }

# The command line without a window.
"$PROGRAMME" --version | grep -Eqx 'velmaris [0-9]+\.[0-9]+\.[0-9]+' || echoue "--version"
"$PROGRAMME" --help | grep -q 'FILE.LoP' || echoue "--help"
code=0; "$PROGRAMME" --voile 2>/dev/null || code=$?
attendu "status of an unknown option" "$code" 2

# A file whose name has accents and blanks, given by its place from the folder that the program starts in.
cp "$EXEMPLES/21JUN26 120530.LoP" "$HOME/visée été à Brest.LoP"
PROGRAMME=$(realpath "$PROGRAMME") IMAGES=$(realpath "$IMAGES")
cd "$HOME"
demarre "visée été à Brest.LoP"
attends titre_dit 'visée été à Brest$'
[ "$LANGUE" = en ] && clic 14700 520
image "bureau-$LANGUE-fichier"

# The guide, and the links: the address is shown where nothing opens it.
touche F1
attends boite_ouverte "$TOLD_BOX"
image "bureau-$LANGUE-aide"
case $(demande) in */aide/$LANGUE/index.html) ;; *) echoue "le guide demandé est $(demande)" ;; esac
repond "$TOLD_BOX" Return
reprend "$TOLD_BOX"
clic 9000 6000
touche Down Down Down Down Down Down Down Down Down Down Return
attends boite_ouverte "$APROPOS"
image "bureau-$LANGUE-apropos"
touche space
attends boite_ouverte "$TOLD_BOX"
image "bureau-$LANGUE-adresse"
attendu "adresse demandée" "$(demande)" https://www.velmaris.org/
repond "$TOLD_BOX" Return
revient "$TOLD_BOX" "$APROPOS"
touche Escape
reprend "$APROPOS"
quitte "bureau-$LANGUE-quitter"

# A file that is gone: told once the window is there, which then works.
demarre_apres_boite "bureau-$LANGUE-absent" absent.LoP
quitte "bureau-$LANGUE-quitter"
echo "bureau-$LANGUE : fait"
