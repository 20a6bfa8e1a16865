#!/usr/bin/env bash
# Checks a help page: title, language, tags, bookmarks, number of pages, embedded fonts, hyphenation, and
# sentences.
# usage: help_test.sh PDF TITLE MIN-MAX SENTENCE...
set -euo pipefail
export LC_ALL=C

pdf=$1 titel=$2 seiten=$3
shift 3
fehler=0
melde() { echo "$(basename "$pdf"): $*"; fehler=1; }

info=$(pdfinfo "$pdf")
grep -qE "^Title: +$titel\$" <<<"$info" || melde "wrong title"
anzahl=$(awk '/^Pages:/ { print $2 }' <<<"$info")
if [ "$anzahl" -lt "${seiten%-*}" ] || [ "$anzahl" -gt "${seiten#*-}" ]; then
  melde "$anzahl pages"
fi
grep -qE '^Page size: .*A4' <<<"$info" || melde "not A4"
grep -qa '/Lang (de)' "$pdf" || melde "no language"
grep -qE '^Tagged: +yes' <<<"$info" || melde "no tags for screen readers"
grep -qa '/Outlines' "$pdf" || melde "no bookmarks"

# Columns from the right: object and generation, Unicode map, subset, embedded.
schriften=$(pdffonts "$pdf" | tail -n +3)
[ -n "$schriften" ] || melde "no fonts"
awk '$(NF-4) != "yes" || $(NF-2) != "yes" { exit 1 }' <<<"$schriften" || melde "a font is not embedded"

# A word is broken with the hyphen U+2010; the rules of German come with the package hyphen-de.
trennstrich=$'\xe2\x80\x90' geschuetzt=$'\xc2\xa0'
text=$(pdftotext "$pdf" - | tr -s '[:space:]' ' ')
[[ $text == *"$trennstrich "* ]] || melde "no hyphenation"
text=${text//"$trennstrich "/}
text=${text//"$geschuetzt"/ }
for satz in "$@"; do
  grep -qF -- "$satz" <<<"$text" || melde "missing: $satz"
done
exit "$fehler"
