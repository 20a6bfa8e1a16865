#!/usr/bin/env bash
# Installs a build into an empty folder and checks what a desktop looks for there, and that the program
# loads its libraries from nowhere else than the system does.
# usage: install_test.sh BUILD_FOLDER
set -euo pipefail

build=$(realpath "$1") source=$(realpath "$(dirname "$0")/../..") root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
DESTDIR=$root cmake --install "$build" --prefix /usr >/dev/null
cd "$root/usr"

id=example.glanzgrube.Glanzgrube
expected=(bin/glanzgrube share/man/man6/glanzgrube.6 share/man/de/man6/glanzgrube.6
  share/glanzgrube/{WHOOSH,FRAGE,FEHLER,BLIP,START,TADA}.WAV
  share/glanzgrube/{saranten,Meldefenster,Bestespieler}.pdf
  "share/applications/$id.desktop" "share/metainfo/$id.metainfo.xml"
  share/icons/hicolor/{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512}/apps/"$id.png"
  "share/icons/hicolor/scalable/apps/$id.svg")
diff <(printf '%s\n' "${expected[@]}" | sort) <(find . -type f -printf '%P\n' | sort)
desktop-file-validate "share/applications/$id.desktop"
appstreamcli validate-tree --no-net "$root"

fail() { echo "$*"; exit 1; }
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
[[ $(head -1 "$source/debian/changelog") == "glanzgrube ($version) "* ]] || fail "changelog: not $version"
[[ $(grep -m1 '<release ' "share/metainfo/$id.metainfo.xml") == *"\"$version\""* ]] ||
  fail "AppStream data: not $version"
! readelf -d bin/glanzgrube | grep -E 'R(UN)?PATH' || fail "a run path"
