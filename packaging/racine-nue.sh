# shellcheck shell=bash
# Sourced by the trials: makes a bare Debian 12 in a folder of its own, $racine, which goes with the script. Everything is
# mounted in a name space of the script's own, so that no mount can outlive it.

[ "$(id -u)" = 0 ] || { echo "$(basename "$0"): il faut être root (sudo make ...) / root is needed" >&2; exit 1; }
if [ -z "${VELMARIS_ESSAI_ISOLE:-}" ]; then
  VELMARIS_ESSAI_ISOLE=1 exec unshare --mount --propagation private "$0" "$@"
fi

debut=$(date +%s)
etape() { printf '\n== %4d s  %s\n' "$(($(date +%s) - debut))" "$*"; }
rate() { echo "ÉCHEC / FAILED: $*" >&2; exit 1; }

racine=$(mktemp -d "${TMPDIR:-/var/tmp}/velmaris-essai-XXXXXX")
chmod 755 "$racine" # it becomes the root of a plain user, too
processus=()
# Its own processes first, then mounts, the last one first; nothing is deleted while anything is mounted below.
nettoie_racine() {
  local p m
  for p in "${processus[@]}"; do
    kill "$p" 2>/dev/null || true
    wait "$p" 2>/dev/null || true
  done
  awk -v r="$racine/" 'index($2, r) == 1 { print $2 }' /proc/self/mounts | sort -r | while read -r m; do
    umount "$m" || umount --lazy "$m"
  done
  if awk -v r="$racine/" 'index($2, r) == 1 { exit 1 }' /proc/self/mounts; then
    rm -rf --one-file-system "$racine"
  else
    echo "something is still mounted under $racine, which stays" >&2
  fi
}
trap nettoie_racine EXIT
trap 'echo "$0, line $LINENO: $BASH_COMMAND" >&2' ERR
trap 'exit 130' INT TERM

# The first Debian mirror that this machine's apt uses, in either form of its lists.
miroir() {
  local listes=()
  mapfile -t listes < <(find /etc/apt/sources.list /etc/apt/sources.list.d -type f \( -name '*.list' -o -name '*.sources' \) 2>/dev/null)
  sed -nE 's/^(URIs:|deb( \[[^]]*\])?)[[:space:]]+(https?:[^[:space:]]+\/debian)\/?([[:space:]].*)?$/\3/p' "${listes[@]}" | head -n 1
}

# Runs a command in the root: as root, or as a plain user of its own.
dans() { chroot "$racine" env -i HOME=/root LANG=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"; }
marin=(chroot --userspec=marin:marin "$racine" env -i HOME=/home/marin XDG_RUNTIME_DIR=/run/user/marin LANG=C.UTF-8
  PATH=/usr/bin:/bin)
en_marin() { "${marin[@]}" "$@"; }

prepare_racine() {
  local source
  source=$(miroir)
  source=${source:-http://deb.debian.org/debian}
  etape "debootstrap --variant=minbase bookworm, $source"
  debootstrap --variant=minbase --keyring=/usr/share/keyrings/debian-archive-keyring.gpg bookworm "$racine" "$source" \
    >"$racine.log" 2>&1 || { tail -n 20 "$racine.log" >&2; rm -f "$racine.log"; rate debootstrap; }
  rm -f "$racine.log"
  cp /etc/resolv.conf "$racine/etc/resolv.conf"
  apt-config dump | grep -i '^Acquire::https\?::Proxy' >"$racine/etc/apt/apt.conf.d/90mandataire" || true
  echo "deb $source bookworm main" >"$racine/etc/apt/sources.list"
  # No daemon starts in here.
  printf '#!/bin/sh\nexit 101\n' >"$racine/usr/sbin/policy-rc.d"
  chmod +x "$racine/usr/sbin/policy-rc.d"
  mount -t proc proc "$racine/proc"
  dans apt-get update -qq
  dans useradd --create-home --shell /bin/bash marin
  dans install -d -o marin -g marin -m 700 /run/user/marin
  echo "$(dans dpkg-query -W | wc -l) packages, $(du -sxm "$racine" | cut -f1) MB"
}
