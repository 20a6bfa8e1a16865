#!/usr/bin/env bash
# Checks a help page: title, language, tags, bookmarks, pages, embedded fonts, hyphenation, sentences.
# usage: help_test.sh PDF TITLE MIN-MAX [SENTENCE...]
set -euo pipefail
export LC_ALL=C

pdf=$1 title=$2 pages=$3
shift 3
# A word is broken with the hyphen U+2010; the rules of German come with the package hyphen-de.
hyphen=$'\xe2\x80\x90' nobreak=$'\xc2\xa0'
text=$(pdftotext "$pdf" - | tr -s '[:space:]' ' ')
# Columns of the fonts from the right: object and generation, Unicode map, subset, embedded.
found=$(pdfinfo "$pdf"
  qpdf --qdf --object-streams=disable "$pdf" - | strings
  echo "Fonts:" "$(pdffonts "$pdf" | awk 'NR > 2 { print $(NF-4), $(NF-2) }' | sort -u)"
  echo "$text"
  sed "s/$hyphen //g; s/$nobreak/ /g" <<<"$text")
for line in "^Title: +$title\$" '^Page size: .*A4' '^Tagged: +yes' "^Pages: +[$pages]\$" \
  '/Lang \(de\)' /Outlines '^Fonts: yes yes$' "$hyphen " "$@"; do
  grep -qE -- "$line" <<<"$found" || { echo "$(basename "$pdf"): no $line"; exit 1; }
done
