#!/bin/sh
# Renders one sound:  klang.sh SOX TABLE NAME FILE
# A stroke is a sum of a few decaying sine tones. The material gives the ratios of the overtones: few and high
# for a bar of glass, softer for a bead, as strong as the fundamental for stone, so that small loudspeakers play
# it. One overtone of stone starts at its maximum; this lowers the peak of the sum, so that the sound can be
# louder. A tick is stone that decays within a few milliseconds.
set -e
sox=$1 tabelle=$2 name=$3 datei=$4

eval "$(awk -v sox="$sox" -v name="$name" '
  # overtone(ratio of pitch, strength, ratio of ringing, hundredths of a turn at the begin)
  function teilton(verhaeltnis, staerke, ausklang, phase) {
    tonhoehe = $4 * verhaeltnis
    dauer = $5 * ausklang
    printf " \"|%s -D -r 44100 -n -p synth %.4f sine %.2f 0 %d vol %.4f fade l %.4f %.4f %.4f pad %.4f\"", \
           sox, dauer, tonhoehe, phase, $6 * staerke * 0.1, anstieg, dauer, dauer - anstieg, $3
  }
  BEGIN { printf "set --" }
  $1 != name { next }
  $2 == "length" { laenge = $3; pegel = $4; printf " \"|%s -D -r 44100 -n -p trim 0 %s\"", sox, laenge }
  { anstieg = $2 == "perle" ? 0.006 : $2 == "tick" ? 0.001 : 0.003 }
  $2 == "glas"   { teilton(1, 1, 1, 0); teilton(2.756, 0.28, 0.5, 0); teilton(5.404, 0.10, 0.25, 0) }
  $2 == "perle"  { teilton(1, 1, 1, 0); teilton(2.756, 0.28, 0.5, 0); teilton(5.404, 0.03, 0.25, 0) }
  $2 == "stein" || $2 == "tick" { teilton(1, 0.7, 1, 0); teilton(2.24, 0.65, 0.8, 25); teilton(3.46, 0.8, 0.8, 0) }
  END { printf "; laenge=%s pegel=%s\n", laenge, pegel }
' "$tabelle")"

# The first input is silence of the whole length. -R and -D: the same file from every build. The
# silence behind the sound is there to be lost: some sound systems drop what they hold at the end.
"$sox" -R -D -m "$@" -b 16 -e signed-integer "$datei" \
  trim 0 "$laenge" fade t 0.001 "$laenge" 0.08 gain -n "$pegel" pad 0 0.2
