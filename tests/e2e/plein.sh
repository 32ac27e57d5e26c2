#!/usr/bin/env bash
# The real program on a full disk of its own: each refusal is told once, it works on and leaves in peace; once there is
# room the next start has all that had been stored.
# Usage: plein.sh PROGRAMME IMAGES EXEMPLES
# Ends with 77 where a small disk can't be mounted.
if [ -z "${DISQUE_A_SOI:-}" ]; then
  unshare -m true 2>/dev/null || { echo "a small disk can only be mounted by the administrator"; exit 77; }
  DISQUE_A_SOI=oui exec unshare -m bash "$0" "$@"
fi
PROGRAMME=$1 IMAGES=$2 EXEMPLES=$3
. "$(dirname "$0")/outils.sh"
DONNEES="$XDG_DATA_HOME/velmaris"
mkdir -p "$DONNEES"
mount -t tmpfs -o size=512k velmaris "$DONNEES" || { echo "no small disk can be mounted here"; exit 77; }
trap 'umount -l "$DONNEES"; rm -rf "$TRAVAIL" || true' EXIT
gestionnaire
export HOME="$XDG_DATA_HOME/maison"
mkdir -p "$HOME"
SAUVE="^(Sauvegarder le|Save the) "
dit() { repond "$TOLD_BOX" Return; reprend "$TOLD_BOX"; }
sans_boite() { pause 0.5; ! boite_ouverte "$TOLD_BOX" || echoue "dit deux fois : $1"; }

demarre "$EXEMPLES/21JUN26 120530.LoP"
touche F5; attends stocke 'T3(0)' 12
droite=$(sqlite3 "$MAGASIN" "SELECT cle, valeur FROM valeurs WHERE cle LIKE '%(0)' ORDER BY cle")
cp "$EXEMPLES/21JUN26 092005.LoP" "$DONNEES/vieille.LoP"
head -c 1M /dev/zero >"$DONNEES/bourre" 2>/dev/null || true

mode $MODE_ENREGISTRE; touche F5
attends boite_ouverte "$TOLD_BOX"; image plein-droite; dit
mode $MODE_ENREGISTRE; touche F6; sans_boite "les réglages"
clic 700 8300
attends boite_ouverte "$TOLD_BOX"; image plein-journal; dit
clic 700 8300; sans_boite "le journal"
clic 400 500
attends boite_ouverte "$SAUVE"; pause 0.3
tape "$DONNEES/vieille.LoP"; touche Return
attends boite_ouverte "$TOLD_BOX"; image plein-sauve; dit
cmp "$EXEMPLES/21JUN26 092005.LoP" "$DONNEES/vieille.LoP" || echoue "l'ancien fichier n'est plus entier"
quitte plein-quitter

rm "$DONNEES/bourre"
attendu "la première droite" "$(sqlite3 "$MAGASIN" "SELECT cle, valeur FROM valeurs WHERE cle LIKE '%(0)' ORDER BY cle")" "$droite"
demarre "$EXEMPLES/21JUN26 120530.LoP"
sans_boite "au départ"
touche F6; attends stocke 'T3(1)' 12
quitte plein-fin
attendu "ce qui reste" "$(ls "$DONNEES" | grep -Ev '^(valeurs.sqlite|journal.csv|vieille.LoP)$' || true)" ""
echo "disque plein : bien"
