/// @file
/// The numbers beside the playfield: the lengths of the runs of gems in each line.
#pragma once

#include "core/ansicht.h"

/// Writes the clue numbers of all 20 lines and refreshes the panel. The first place of a line holds
/// the run nearest to the line's lower or right end; places without a run are hidden.
void BerechneZahlen(Ansicht &ansicht);
