/// @file
/// What lies on the board and what of it is open, counted from the board and its tiles.
#pragma once

#include <cstdint>

#include "core/ansicht.h"

/// True once a level has been dealt; before that nothing on the playfield can be opened.
bool BrettLiegt();

/// Gems of the board that are not opened yet.
std::int16_t ZaehleRest(const Ansicht &ansicht);
