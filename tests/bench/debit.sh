#!/bin/bash
# Sights a second that the companion reduces: 10,000 files in the system's cache, the best of five runs.
# Use: debit.sh [velmaris-calcul [how many]], in whole lots of the sample sights
set -euo pipefail
racine=$(cd "$(dirname "$0")/../.." && pwd)
calcul=$(realpath "${1:-$racine/build/bin/velmaris-calcul}")
nombre=${2:-10000}
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT

exemples=("$racine"/data/exemples/*.LoP)
lots=$((nombre / ${#exemples[@]}))
nombre=$((lots * ${#exemples[@]}))
mkdir "$dossier/v"
for ((i = 0; i < lots; i++)); do
  mkdir "$dossier/v/$i"
  cp "${exemples[@]}" "$dossier/v/$i"
done
find "$dossier/v" -name '*.LoP' -printf 'v/%P\0' >"$dossier/liste"

cd "$dossier"
meilleur=
for _ in 1 2 3 4 5; do
  debut=$(date +%s%N)
  xargs -0 -n "$nombre" -s 2000000 "$calcul" reduit <liste >sortie
  duree=$(($(date +%s%N) - debut))
  if [ -z "$meilleur" ] || [ "$duree" -lt "$meilleur" ]; then
    meilleur=$duree
  fi
done
reduites=$(grep -c '"reduit":true' sortie)
echo "files: $nombre"
echo "reduced: $reduites"
echo "milliseconds: $((meilleur / 1000000))"
echo "sights a second: $((nombre * 1000000000 / meilleur))"
[ "$reduites" -eq "$nombre" ]
