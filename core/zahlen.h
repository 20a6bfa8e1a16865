// The numbers beside the board: the lengths of the runs of gems in each line.
#pragma once

#include "core/ansicht.h"

/// Shows the clue numbers of all 20 lines and refreshes the panel. The first place of a line shows
/// the lowest or rightmost run. Places without a run are hidden.
void BerechneZahlen(Ansicht &ansicht);
