#!/bin/bash
# Start to the first window, and resident memory with it open: the program, and the toolkit's bare window beside it.
# The screen must outlive its last client (-noreset): between two starts there is none.
# Use, where a screen is: depart.sh velmaris velmaris-bench-nue. Prints "name milliseconds kilobytes", the best of nine.
set -euo pipefail
export LC_ALL=C.UTF-8 XDG_DATA_HOME XDG_RUNTIME_DIR
XDG_DATA_HOME=$(mktemp -d) XDG_RUNTIME_DIR=$(mktemp -d)
trap 'rm -rf "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR"' EXIT

mesure() {
  local nom=$1 meilleur='' memoire=''
  shift
  for _ in $(seq 9); do
    local debut duree pid
    debut=$(date +%s%N)
    "$@" >/dev/null 2>&1 &
    pid=$!
    until xdotool search --onlyvisible --pid "$pid" --name 'Velmaris 2009|GMT' >/dev/null 2>&1; do
      kill -0 "$pid" || exit 1
    done
    duree=$((($(date +%s%N) - debut) / 100000))
    sleep 0.5
    memoire=$(awk '/^VmRSS/ { print $2 }' "/proc/$pid/status")
    kill "$pid"
    wait "$pid" 2>/dev/null || true
    if [ -z "$meilleur" ] || [ "$duree" -lt "$meilleur" ]; then
      meilleur=$duree
    fi
  done
  echo "$nom $((meilleur / 10)).$((meilleur % 10)) $memoire"
}

mesure programme "$1"
mesure nue "$2"
