#!/bin/bash
# Takes the source to a bare Debian 12 that has make, git and certificates and nothing else, and asks it for what
# everyone asks: the packages that it needs, the build, and some of the tests. A machine on which all of that has always
# been would hide a missing package.
set -euo pipefail
# shellcheck source=packaging/racine-nue.sh
. "$(dirname "$0")/racine-nue.sh"
depot=$(realpath "$(dirname "$0")/..")

prepare_racine
etape "make, git, ca-certificates"
dans apt-get install -y -qq --no-install-recommends make git ca-certificates >"$racine/apt.log" 2>&1 ||
  { cat "$racine/apt.log" >&2; rate "apt-get install"; }
git -C "$depot" archive --prefix=source/ HEAD | tar -x -C "$racine/root"
dans git -C /root/source -c init.defaultBranch=main init -q
dans git -C /root/source add -A

etape "make deps"
dans make -s -C /root/source deps >"$racine/apt.log" 2>&1 || { tail -n 40 "$racine/apt.log" >&2; rate "make deps"; }
echo "$(dans dpkg-query -W | wc -l) packages, $(du -sxm "$racine" | cut -f1) MB"

etape "configuration"
dans sh -c 'cd /root/source && cmake --preset release'
etape "the programs, the package's own files and their tests"
dans sh -c 'cd /root/source && cmake --build --preset release'
dans sh -c 'cd /root/source && ctest --test-dir build --output-on-failure -j2'
etape "make paquet"
dans make -C /root/source paquet
etape "the source stands the trial"
