/// @file
/// What is counted from the board and from the tiles that its cells show.
#pragma once

#include <cstdint>

#include "core/ansicht.h"

/// True if the board holds a gem. Before the first level it does not, and no cell can be played.
bool BrettLiegt();

/// Gems of the board that are not opened yet.
std::int16_t ZaehleRest(const Ansicht &ansicht);
