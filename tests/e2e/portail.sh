#!/usr/bin/env bash
# The desktop's dark setting and its high contrast, as the session's bus tells them: at a start, while the program runs,
# told wrongly, and once the user has chosen a view.
# Usage: dbus-run-session -- portail.sh PROGRAMME IMAGES PYTHON
PROGRAMME=$1 IMAGES=$2 PYTHON=$3
. "$(dirname "$0")/outils.sh"
gestionnaire

mkfifo "$TRAVAIL/reglages"
"$PYTHON" -B "$(dirname "$0")/portail.py" <"$TRAVAIL/reglages" >"$TRAVAIL/bureau" &
exec 9>"$TRAVAIL/reglages"
attends grep -q pret "$TRAVAIL/bureau"
regle() { echo "$1" >&9; pause 0.3; }

# Whether any pixel of the window is white: by day the sheet is, by dusk nothing.
blancs() { import -window "$FENETRE" png:- | convert - -colorspace gray -threshold 97% -format '%[fx:int(mean*1000+0.5)]' info:; }
est_jour() { [ "$(blancs)" -gt 0 ]; }
est_sombre() { [ "$(blancs)" -eq 0 ]; }
image_vue() { import -window "$FENETRE" png:- | convert - -crop 100%x90%+0+80 -format '%#' info:; }
autre_que() { [ "$(image_vue)" != "$1" ]; }

regle "color-scheme 1"
demarre
attends est_sombre
image portail-sombre
[ -z "$(reglage Nuit)" ] || echoue "le bureau a choisi pour l'utilisateur"
regle "color-scheme 2"; attends est_jour
regle "color-scheme sombre"; attends est_jour # no number: not dark
avant=$(image_vue)
regle "contrast 1"; attends autre_que "$avant"
image portail-contraste
regle "contrast 0"
regle "color-scheme 1"; attends est_sombre

# A view that its user has chosen stays, whatever the desktop says.
touche ctrl+n ctrl+n; attends est_jour
regle "color-scheme 2"; regle "color-scheme 1"
pause 0.5
est_jour || echoue "le bureau a changé une vue choisie"
attendu "la vue choisie" "$(reglage Nuit)" 0
quitte portail-quitter
exec 9>&-
echo "portail : bien"
