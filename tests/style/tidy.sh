#!/usr/bin/env bash
# Checks the files of a folder with clang-tidy, as one file, since Qt's headers take most of the time.
# usage: tidy.sh FOLDER FILE [FLAG ...]
set -euo pipefail
find "$1" -name '*.cpp' -not -path '*/windows/*' | sort | xargs cat >"$2"
clang-tidy --quiet --config-file=.clang-tidy "$2" -- "${@:3}"
