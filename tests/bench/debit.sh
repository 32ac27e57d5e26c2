#!/bin/bash
# Sights a second that the companion reduces, by kind of body: files in the system's cache, the best of five runs.
# Use: debit.sh [velmaris-calcul [how many of each kind]], in whole lots of the sample sights
set -euo pipefail
racine=$(cd "$(dirname "$0")/../.." && pwd)
calcul=$(realpath "${1:-$racine/build/bin/velmaris-calcul}")
voulu=${2:-5000}
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT

# Measures the sample sights whose 18th line is the body's number.
mesure() {
  local nom=$1 corps=$2 exemples=() meilleur= lots nombre
  for f in "$racine"/data/exemples/*.LoP; do
    [ "$(sed -n 18p "$f" | tr -d ' \r')" = "$corps" ] && exemples+=("$f")
  done
  lots=$((voulu / ${#exemples[@]}))
  nombre=$((lots * ${#exemples[@]}))
  for ((i = 0; i < lots; i++)); do
    mkdir -p "$dossier/$corps/$i"
    cp "${exemples[@]}" "$dossier/$corps/$i"
  done
  cd "$dossier"
  find "$corps" -name '*.LoP' -print0 >liste
  for _ in 1 2 3 4 5; do
    debut=$(date +%s%N)
    xargs -0 -n "$nombre" -s 2000000 "$calcul" reduit <liste >sortie
    duree=$(($(date +%s%N) - debut))
    if [ -z "$meilleur" ] || [ "$duree" -lt "$meilleur" ]; then
      meilleur=$duree
    fi
  done
  [ "$(grep -c '"reduit":true' sortie)" -eq "$nombre" ]
  echo "$nom: $((nombre * 1000000000 / meilleur)) sights a second"
}

mesure Sun 0
mesure Moon 1
mesure planets 2
mesure stars 3
