#!/usr/bin/env bash
# Checks the format of every source, those that git does not know yet included.
set -euo pipefail

liste=$(git ls-files --cached --others --exclude-standard '*.h' '*.cpp')
mapfile -t dateien <<<"$liste"
[ -n "$liste" ] || { echo "no sources to check"; exit 1; }
clang-format --dry-run -Werror "${dateien[@]}"
