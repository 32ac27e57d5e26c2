#!/bin/bash
# Checks a Debian package as the desktop and Debian look at it; the first complaint ends it with status 1.
set -euo pipefail
export LC_ALL=C.UTF-8

paquet=${1:?usage: verifie-paquet.sh PAQUET.deb}
arbre=$(mktemp -d)
trap 'rm -rf "$arbre"' EXIT
dpkg-deb -x "$paquet" "$arbre"
partage=$arbre/usr/share

echo "== $(basename "$paquet")"
dpkg-deb -f "$paquet" Package Version Architecture Section Depends Recommends Suggests Installed-Size

echo "== menu, description, file type"
desktop-file-validate "$partage"/applications/*.desktop
appstreamcli validate --no-net "$partage"/metainfo/*.metainfo.xml
xmllint --noout "$partage"/mime/packages/*.xml "$partage"/icons/hicolor/scalable/*/*.svg

echo "== manual pages"
find "$partage/man" -name '*.gz' | sort | while read -r page; do
  plaintes=$(zcat "$page" | groff -man -ww -K utf8 -T utf8 -z 2>&1)
  if [ -n "$plaintes" ]; then
    echo "$page: $plaintes" >&2
    exit 1
  fi
done

echo "== lintian"
lintian --allow-root --info --fail-on error,warning "$paquet"
echo "== the package is in order"
