#!/usr/bin/env bash
# Installs a build into an empty folder and checks what a desktop looks for there.
# usage: einrichtung_test.sh BUILD_FOLDER
set -euo pipefail

wurzel=$(mktemp -d)
trap 'rm -rf "$wurzel"' EXIT
DESTDIR=$wurzel cmake --install "$1" --prefix /usr >/dev/null
cd "$wurzel/usr"

kennung=example.glanzgrube.Glanzgrube
erwartet=(bin/glanzgrube
  share/man/man6/glanzgrube.6.gz share/man/de/man6/glanzgrube.6.gz
  share/doc/glanzgrube/copyright share/doc/glanzgrube/changelog.gz
  share/glanzgrube/{WHOOSH,FRAGE,FEHLER,BLIP,START,TADA}.WAV
  share/glanzgrube/{saranten,Meldefenster,Bestespieler}.pdf
  "share/applications/$kennung.desktop" "share/metainfo/$kennung.metainfo.xml"
  share/icons/hicolor/{16x16,32x32,48x48,64x64,128x128,256x256,512x512}/apps/"$kennung.png"
  "share/icons/hicolor/scalable/apps/$kennung.svg")
diff <(printf '%s\n' "${erwartet[@]}" | sort) <(find . -type f -printf '%P\n' | sort)

desktop-file-validate "share/applications/$kennung.desktop"
appstreamcli validate-tree --no-net "$wurzel"
