#!/bin/bash
# All measures in one run, and the page that tells them.
# Use: tout.sh [folder of the programs [page]]
set -euo pipefail
ici=$(dirname "$0")
programmes=${1:-build/bin} page=${2:-docs/PERFORMANCE.md}
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT
export QT_SCALE_FACTOR=1 XDG_RUNTIME_DIR=$dossier

"$programmes/velmaris-bench" --benchmark_out="$dossier/coeur.json"
QT_QPA_PLATFORM=offscreen "$programmes/velmaris-bench-ecran" --benchmark_out="$dossier/ecran.json"
"$ici/debit.sh" "$programmes/velmaris-calcul" | tee "$dossier/debit.txt"
xvfb-run -a -s "-screen 0 1920x1080x24 -noreset" "$ici/depart.sh" "$programmes/velmaris" "$programmes/velmaris-bench-nue" |
  tee "$dossier/depart.txt"
/usr/bin/python3 -B "$ici/page.py" "$page" "$dossier/coeur.json" "$dossier/ecran.json" "$dossier/debit.txt" "$dossier/depart.txt"
