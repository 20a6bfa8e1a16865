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
diff "$source/tests/approved/installed.txt" <(find . -type f -printf '%P\n' | LC_ALL=C sort)
desktop-file-validate "share/applications/$id.desktop"
appstreamcli validate-tree --no-net "$root"

fail() { echo "$*"; exit 1; }
entry() { sed -n "s/^$1=//p" "share/applications/$id.desktop"; }
[ -x "bin/$(entry Exec)" ] && [ -f "share/icons/hicolor/48x48/apps/$(entry Icon).png" ] ||
  fail "desktop entry: no program or no icon"
sed '1,/^Depends:/d' "$source/debian/control" | grep -q fonts-liberation || fail "a package without its fonts"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
[[ $(head -1 "$source/debian/changelog") == "glanzgrube ($version) "* ]] || fail "changelog: not $version"
! readelf -d bin/glanzgrube | grep -E 'R(UN)?PATH' || fail "a run path"
