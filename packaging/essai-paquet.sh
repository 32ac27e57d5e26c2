#!/bin/bash
# Installs a package into a bare Debian 12 and tries it there as a plain user would: first with what it depends on and no
# more, then as apt installs it by itself, then on what a desktop has. Leaves a picture in build/pictures/paquet.png.
set -euo pipefail
# shellcheck source=packaging/racine-nue.sh
. "$(dirname "$0")/racine-nue.sh"

paquet=$(realpath "${1:?usage: essai-paquet.sh PAQUET.deb}")
images=$(realpath "$(dirname "$0")/..")/build/pictures
id=$(dpkg-deb --fsys-tarfile "$paquet" | tar -t | sed -n 's,.*/applications/\(.*\)\.desktop$,\1,p')
version=$(dpkg-deb -f "$paquet" Version)
classe=$(dpkg-deb --fsys-tarfile "$paquet" | tar -xO "./usr/share/applications/$id.desktop" | sed -n 's/^StartupWMClass=//p')
visee="/usr/share/velmaris/exemples/21JUN26 120530.LoP"
mkdir -p "$images"

# A screen outside, whose socket is seen in the root.
ouvre_ecran() {
  mkdir -p /tmp/.X11-unix
  Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp -noreset -ac 3>"$racine/ecran" >"$racine/xvfb.log" 2>&1 &
  processus+=($!)
  for _ in $(seq 100); do
    [ -s "$racine/ecran" ] && break
    sleep 0.1
  done
  [ -s "$racine/ecran" ] || { cat "$racine/xvfb.log" >&2; rate "no virtual screen"; }
  DISPLAY=":$(tr -d '[:space:]' <"$racine/ecran")"
  export DISPLAY
  openbox >/dev/null 2>&1 &
  processus+=($!)
  for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    sleep 0.1
  done
  mkdir -p "$racine/tmp/.X11-unix"
  mount --bind /tmp/.X11-unix "$racine/tmp/.X11-unix"
}

# Opens the program's window as a plain user, looks at it and closes it. $1: the picture; $2: what its title tells before
# long; then the arguments
montre() {
  local image=$1 attendu=$2 programme fenetre='' titre='' couleurs
  shift 2
  # No function here: its shell would be what is ended below, and the program would live on.
  "${marin[@]}" DISPLAY="$DISPLAY" velmaris "$@" >"$racine/velmaris.log" 2>&1 &
  programme=$!
  for _ in $(seq 300); do
    fenetre=$(xdotool search --onlyvisible --class "^$classe\$" 2>/dev/null | head -n 1) || true
    [ -n "$fenetre" ] && break
    kill -0 "$programme" 2>/dev/null || break
    sleep 0.1
  done
  [ -n "$fenetre" ] || { cat "$racine/velmaris.log" >&2; kill "$programme" 2>/dev/null; rate "the window doesn't appear"; }
  for _ in $(seq 600); do
    titre=$(xprop -id "$fenetre" WM_CLASS _NET_WM_NAME)
    grep -qF "$attendu" <<<"$titre" && break
    sleep 0.1
  done
  echo "$titre"
  grep -qF "$attendu" <<<"$titre" || { import -window root "$image"; kill "$programme"; rate "its title never tells $attendu"; }
  sleep 2
  import -window root "$image"
  kill "$programme"
  wait "$programme" 2>/dev/null || true
  echo "what the program said: $(cat "$racine/velmaris.log")"
  if grep -qiE 'could not load|cannot load|no qt platform|cannot find font|not found' "$racine/velmaris.log"; then
    rate "the program misses something"
  fi
  couleurs=$(identify -format %k "$image")
  [ "$couleurs" -gt 100 ] || rate "the picture shows $couleurs colours"
  echo "$image: $couleurs colours"
}

installe() {
  cp "$paquet" "$racine/tmp/velmaris.deb"
  dans apt-get install -y -qq "$@" /tmp/velmaris.deb >"$racine/apt.log" 2>&1 || { cat "$racine/apt.log" >&2; rate "apt-get install"; }
  dans dpkg -s velmaris | grep -E '^(Status|Version|Installed-Size)'
  echo "$(dans dpkg-query -W | wc -l) packages, $(du -sxm "$racine" | cut -f1) MB"
}

# Purges the package: none of its files is left, nor any other of its name outside the user's folder.
purge() {
  local restes fichier
  mapfile -t fichiers < <(dans dpkg -L velmaris)
  dans apt-get purge -y -qq velmaris >"$racine/apt.log" 2>&1 || { cat "$racine/apt.log" >&2; rate "apt-get purge"; }
  for fichier in "${fichiers[@]}"; do
    if [ -L "$racine$fichier" ] || [ -f "$racine$fichier" ]; then
      rate "$fichier is left"
    fi
  done
  restes=$(find "$racine" -mindepth 1 -xdev -iname '*velmaris*' -not -path "$racine/home/*" -not -path "$racine/tmp/*" \
    -not -name velmaris.log)
  [ -z "$restes" ] || rate "left: $restes"
  ! dans dpkg -s velmaris >/dev/null 2>&1 || rate "dpkg still knows the package"
  echo "nothing is left but the user's data:"
  (cd "$racine/home/marin" && find . -type f | sort)
}

prepare_racine
ouvre_ecran

etape "what the package depends on, and no more"
installe --no-install-recommends
en_marin velmaris-calcul --version
montre "$images/paquet-nu.png" "GMT"
purge
dans apt-get autoremove -y -qq --purge >/dev/null 2>&1

etape "as apt installs it"
installe
etape "the companion, as a plain user"
en_marin velmaris-calcul reduit "$visee" | tee "$racine/reduit.json"
grep -q '"reduit":true' "$racine/reduit.json" || rate "no reduction"
grep -q 'Dépression' "$racine/reduit.json" || rate "the companion doesn't find its words"
[ "$(en_marin velmaris-calcul --version)" = "velmaris-calcul $version" ] || rate "another version"

etape "the program tells its version"
[ "$(en_marin timeout 10 velmaris --version)" = "velmaris $version" ] || rate "another version"
en_marin timeout 10 velmaris --help

etape "its window, with a saved sight"
montre "$images/paquet.png" "$(basename "$visee" .LoP)" "$visee"

etape "on what a desktop has: menu, file types, icons, manual pages"
dans apt-get install -y -qq --no-install-recommends shared-mime-info desktop-file-utils libglib2.0-bin \
  hicolor-icon-theme man-db >"$racine/apt.log" 2>&1 || { cat "$racine/apt.log" >&2; rate "apt-get install"; }
cp "$racine$visee" "$racine/home/marin/été à Brest.LoP"
cp "$racine$visee" "$racine/home/marin/EN-MER.LOP"
dans sh -c 'chown marin: /home/marin/*.L*'
for fichier in "été à Brest.LoP" EN-MER.LOP; do
  genre=$(en_marin gio info -a standard::content-type "/home/marin/$fichier" | sed -n 's/.*content-type: //p')
  echo "$fichier: $genre"
  [ "$genre" = application/vnd.velmaris.lop ] || rate "the type of a sight is $genre"
done
programmes=$(en_marin gio mime application/vnd.velmaris.lop)
echo "$programmes"
grep -q "$id.desktop" <<<"$programmes" || rate "a sight isn't opened with the program"
desktop-file-validate "$racine/usr/share/applications/$id.desktop"
for dossier in man man/fr; do
  for page in velmaris velmaris-calcul; do
    dans man -l "/usr/share/$dossier/man1/$page.1.gz" | sed -n 3,4p
  done
done

etape "purged"
rm -f "$racine/home/marin"/*.L*
purge
etape "the package stands the trial"
