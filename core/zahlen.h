// The numbers beside the board: the lengths of the runs of gems in each line.
#pragma once

#include "core/ansicht.h"

// Columns and rows are numbered from 1.
constexpr int ZeileVon(int zelle) { return (zelle - 1) / kLinie + 1; }
constexpr int SpalteVon(int zelle) { return (zelle - 1) % kLinie + 1; }

/// The number of a clue place. @param k   its position in the line: 1, next to the board, to 5.
constexpr int PlatzVon(bool spalte, int linie, int k) {
  return (spalte ? 0 : kZahlfelder / 2) + kPlaetzeJeLinie * (linie - 1) + k;
}

/// Shows the clue numbers of all 20 lines and refreshes the panel. The first place of a line shows
/// the lowest or rightmost run. Places without a run are hidden.
void BerechneZahlen(Ansicht &ansicht);
