#!/usr/bin/env bash
# Installs a build into an empty folder and checks what a desktop looks for there, and that the program
# loads its libraries from nowhere else than the system does.
# usage: install_test.sh BUILD_FOLDER
set -euo pipefail

bau=$(realpath "$1")
quelle=$(realpath "$(dirname "$0")/../..")
wurzel=$(mktemp -d)
trap 'rm -rf "$wurzel"' EXIT
DESTDIR=$wurzel cmake --install "$bau" --prefix /usr >/dev/null
cd "$wurzel/usr"

kennung=example.glanzgrube.Glanzgrube
erwartet=(bin/glanzgrube
  share/man/man6/glanzgrube.6 share/man/de/man6/glanzgrube.6
  share/glanzgrube/{WHOOSH,FRAGE,FEHLER,BLIP,START,TADA}.WAV
  share/glanzgrube/{saranten,Meldefenster,Bestespieler}.pdf
  "share/applications/$kennung.desktop" "share/metainfo/$kennung.metainfo.xml"
  share/icons/hicolor/{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512}/apps/"$kennung.png"
  "share/icons/hicolor/scalable/apps/$kennung.svg")
diff <(printf '%s\n' "${erwartet[@]}" | sort) <(find . -type f -printf '%P\n' | sort)

desktop-file-validate "share/applications/$kennung.desktop"
appstreamcli validate-tree --no-net "$wurzel"

melde() { echo "$*"; exit 1; }

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$bau/CMakeCache.txt")
[[ $(cat "$quelle/debian/changelog") == "glanzgrube ($version) "* ]] ||
  melde "the changelog does not begin with $version"
[[ $(grep -m1 '<release ' "share/metainfo/$kennung.metainfo.xml") == *"\"$version\""* ]] ||
  melde "the AppStream data do not begin with $version"

laufpfad() { readelf -d "$1" | sed -n 's/.*(RU*N*PATH).*\[\(.*\)\]/\1/p'; }
[ -z "$(laufpfad bin/glanzgrube)" ] || melde "run path: $(laufpfad bin/glanzgrube)"
# An empty or a relative folder is one below the current folder, whatever that is.
pfad=$(laufpfad "$bau/bin/glanzgrube")
[[ -z $pfad || :$pfad: =~ ^(:/[^:]*)+:$ ]] || melde "run path in the build: $pfad"
