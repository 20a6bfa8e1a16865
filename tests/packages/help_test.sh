#!/usr/bin/env bash
# Checks a help page: title, language, tags, bookmarks, pages, embedded fonts, hyphenation, sentences.
# usage: help_test.sh PDF TITLE MIN-MAX [SENTENCE...]
set -euo pipefail
export LC_ALL=C

pdf=$1 title=$2 pages=$3
shift 3
failed=0
require() { grep -qE -- "$1" <<<"$2" || { echo "$(basename "$pdf"): no $1"; failed=1; }; }

info=$(pdfinfo "$pdf")
objects=$(qpdf --qdf --object-streams=disable "$pdf" - | strings)
for line in "^Title: +$title\$" '^Page size: .*A4' '^Tagged: +yes' "^Pages: +[$pages]\$" \
  '/Lang \(de\)' /Outlines; do
  require "$line" "$info"$'\n'"$objects"
done
# Columns from the right: object and generation, Unicode map, subset, embedded.
fonts=$(pdffonts "$pdf" | awk 'NR > 2 { print $(NF-4), $(NF-2) }' | sort -u)
require '^yes yes$' "$fonts"
[ "$(wc -l <<<"$fonts")" -eq 1 ] || { echo "$(basename "$pdf"): a font is not embedded"; failed=1; }

# A word is broken with the hyphen U+2010; the rules of German come with the package hyphen-de.
hyphen=$'\xe2\x80\x90' nobreak=$'\xc2\xa0'
text=$(pdftotext "$pdf" - | tr -s '[:space:]' ' ')
require "$hyphen " "$text"
text=${text//"$hyphen "/}
for sentence in "$@"; do
  require "$sentence" "${text//"$nobreak"/ }"
done
exit "$failed"
