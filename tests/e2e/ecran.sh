#!/usr/bin/env bash
# Runs a command on a virtual screen of its own and gives its status. The screen itself takes a number that is free, so
# that any number of them may start at once, and it outlives a client which goes: one that starts anew turns away who
# comes meanwhile.
# Usage: ecran.sh 1920x1080 COMMAND ARGUMENTS...
set -euo pipefail
taille=$1
shift

coproc ECRAN { exec Xvfb -displayfd 1 -screen 0 "${taille}x24" -noreset -nolisten tcp 2>/dev/null; }
trap 'kill "$ECRAN_PID" 2>/dev/null || true' EXIT
read -r -t 120 numero <&"${ECRAN[0]}" || { echo "ecran.sh: no virtual screen" >&2; exit 1; }
unset XAUTHORITY WAYLAND_DISPLAY
DISPLAY=":$numero" "$@" </dev/null
