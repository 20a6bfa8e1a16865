#!/usr/bin/env bash
# Compares a picture with the approved one: the mean colours of blocks of 8 by 8 pixels, and how sharp the
# edges in them are. Between two rasterisers, or versions of Qt, less differs than between two signs.
# usage: compare.sh APPROVED SEEN     SEEN is removed if it looks the same
set -euo pipefail

approved=$1 seen=$2 sheet=${2%.jpg}.png
differ() { # the greatest difference of two blocks after some operations, 0 to 100
  convert "$approved" "$seen" "$@" -scale 12.5% -compose difference -composite -format '%[fx:int(100*maxima)]' info:
}
rm -f "$sheet"
[ -f "$approved" ] || { echo "There is no $approved."; exit 1; }
colours=$(differ -alpha off) edges=$(differ -colorspace gray -edge 1)
echo "$seen: colours $colours, edges $edges"
[[ $colours -lt 16 && $edges -lt 20 ]] && exec rm "$seen"
convert "$approved" "$seen" \( -clone 0,1 -compose difference -composite -auto-level \) +append "$sheet"
echo "approved, seen and the difference: $sheet"
exit 1
