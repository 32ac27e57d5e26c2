#!/usr/bin/env bash
# The real program killed at any moment of a session, from its start to its exit: what an outside reader has once seen
# stored stays, lines and files are wholly of one sight, and the next start has nothing to tell.
# Usage: coupures.sh PROGRAMME IMAGES EXEMPLES [DEATHS]
PROGRAMME=$1 IMAGES=$2 EXEMPLES=$3 MORTS=${4:-${VELMARIS_COUPURES_FENETRE:-4}}
. "$(dirname "$0")/outils.sh"
gestionnaire
export HOME="$XDG_DATA_HOME/maison"
mkdir -p "$HOME"
DONNEES="$XDG_DATA_HOME/velmaris" SAUVE="^(Sauvegarder le|Save the) "
VISEES=("$HOME/a.LoP" "$HOME/b.LoP")
# An index error that a redraw shows as it was typed.
sed 's/^-1,0/-1,5/' "$EXEMPLES/21JUN26 120530.LoP" >"${VISEES[0]}"
sed 's/^-1,0/-1,5/' "$EXEMPLES/21JUN26 092005.LoP" >"${VISEES[1]}"
FICHIER="$HOME/sauve.LoP"

# All keys of a stored line in one text, but the numbers of star and planet, which the other bodies leave.
droite() {
  sqlite3 "$MAGASIN" "SELECT cle, valeur FROM valeurs WHERE cle LIKE '%($1)' AND cle NOT LIKE 'Combo%' ORDER BY cle"
}
titre_dit() { xdotool getwindowname "$FENETRE" | grep -q "$1"; }
journal() { if [ -f "$DONNEES/journal.csv" ]; then wc -l <"$DONNEES/journal.csv"; else echo 0; fi; }
croit() { [ "$(journal)" -gt "$1" ]; }

# A session that the death before has left isn't taken up.
refuse() { if boite_ouverte "$REPRISE_BOX"; then xdotool windowfocus "$(xdotool search --onlyvisible --name "$REPRISE_BOX" | head -n 1)" key Escape; fi; }

# Stores the opened sight as the first line, reduces it again for the journal, saves it over the old file, leaves.
geste() {
  local avant
  touche F5; pause 0.2
  avant=$(journal)
  clic 700 8300
  attends croit "$avant"
  clic 400 500
  attends boite_ouverte "$SAUVE"; pause 0.2
  tape "$FICHIER"; touche Return
  attends boite_fermee "$SAUVE"; pause 0.1
  touche F2
  attends boite_ouverte "$EXIT_BOX"
  touche Return
}

# A whole session of each sight, so that what they leave is known.
DROITES=() SAUVES=()
for v in 0 1; do
  debut=$(date +%s%N)
  demarre "${VISEES[$v]}"
  attends titre_dit '[ab]$'
  geste
  attends finie
  wait "$PID" || echoue "la séance $v finit par une erreur"
  DUREE=$((($(date +%s%N) - debut) / 1000000))
  DROITES[v]=$(droite 0)
  SAUVES[v]=$(cat "$FICHIER")
  attendu "le journal" "$(journal)" $((v + 2))
done
[ "${DROITES[0]}" != "${DROITES[1]}" ] && [ "${SAUVES[0]}" != "${SAUVES[1]}" ] || echoue "les deux visées se confondent"
colonnes=$(head -n 1 "$DONNEES/journal.csv" | tr -cd , | wc -c)

RANDOM=${GRAINE:-20261121}
avant=$(journal) finies=0
for n in $(seq "$MORTS"); do
  "$PROGRAMME" "${VISEES[$((n % 2))]}" 2>"$XDG_DATA_HOME/erreurs.txt" &
  PID=$!
  vie=$((RANDOM % (DUREE + 300)))
  (sleep "$(printf '%d.%03d' $((vie / 1000)) $((vie % 1000)))"; kill -KILL "$PID" 2>/dev/null) &
  tueur=$!
  # Hands of a group of their own: what they have begun to type is typed to its end before the next program comes. Cut off
  # between a key's press and its release they would leave it held down for good.
  set -m
  (until fenetre_principale && titre_dit '[ab]$'; do refuse; sleep 0.05; done; xdotool windowfocus --sync "$FENETRE"; geste) \
    >/dev/null 2>&1 &
  mains=$!
  set +m
  code=0; wait "$PID" 2>/dev/null || code=$?
  [ "$code" = 0 ] && finies=$((finies + 1))
  kill "$tueur" 2>/dev/null || true
  kill "$mains" 2>/dev/null || true
  while pgrep -g "$mains" -r D,R,S >/dev/null; do sleep 0.05; done
  wait "$tueur" "$mains" 2>/dev/null || true
  attendu "l'état du magasin, $n" "$(sqlite3 "$MAGASIN" 'PRAGMA integrity_check')" ok
  case $(droite 0) in "${DROITES[0]}" | "${DROITES[1]}") ;; *) echoue "une droite mêlée, $n : $(diff <(echo "${DROITES[0]}") <(droite 0); diff <(echo "${DROITES[1]}") <(droite 0))" ;; esac
  case $(cat "$FICHIER") in "${SAUVES[0]}" | "${SAUVES[1]}") ;; *) echoue "un fichier mêlé, $n" ;; esac
  [ "$(journal)" -ge "$avant" ] || echoue "le journal a perdu une ligne, $n"
  avant=$(journal)
  awk -F, -v n=$((colonnes + 1)) '{ gsub(/"[^"]*"/, "") } NF != n { exit 1 }' "$DONNEES/journal.csv" || echoue "une ligne coupée au journal, $n"
  [ -z "$(find "$DONNEES" -name '*.abime*' -o -name 'secours.LoP')" ] || echoue "un magasin abîmé, $n"
done

# The last word: a start without a box.
demarre
boite_ouverte "$TOLD_BOX" && echoue "le départ annonce quelque chose"
quitte coupures-fin
echo "$MORTS morts, $finies séances finies avant : bien"
