#!/usr/bin/env bash
# Measures the sounds: peaks near -6 dBFS, ends that ring out, and the order of loudness.
# usage: sounds_test.sh FOLDER
set -euo pipefail

measure() { # WHAT FILE EFFECT...
  sox "$2" -n "${@:3}" stats -w 0.125 2>&1 | awk -v what="$1" 'index($0, what) { print $4 }'
}
# What is longer stands behind.
for name in BLIP FRAGE WHOOSH START FEHLER TADA; do soxi -D "$1/$name.WAV"; done | sort -cn
last=0
for name in TADA FEHLER FRAGE START BLIP; do
  file=$1/$name.WAV
  peak=$(measure 'Pk lev' "$file") end=$(measure 'Pk lev' "$file" trim -0.02)
  # The ear is dull to low tones; what counts are the loudest 125 ms.
  loudness=$(measure 'RMS Pk' "$file" pad 0.5 0.5 highpass -1 738 highpass -1 108)
  echo "$name: peak $peak dBFS, end $end dBFS, loudness $loudness dB"
  awk "BEGIN { exit !($peak > -8.5 && $peak < -5 && ${end/-inf/-999} < -46 && $loudness < $last + 0.1) }"
  last=$loudness
done
