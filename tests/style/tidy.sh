#!/bin/sh
# Checks the files of a folder with clang-tidy, as one file.
# usage: tidy.sh FOLDER FILE [FLAG ...]
set -eu
folder=$1 file=$2
shift 2
find "$folder" -name '*.cpp' -not -path '*/windows/*' | sort | xargs cat >"$file"
clang-tidy --quiet --config-file=.clang-tidy "$file" -- "$@"
