/// @file
/// A move: what a press on a cell does, and what the board is worth afterwards.
#pragma once

#include "core/ansicht.h"

inline constexpr int kLinkeTaste = 1;
inline constexpr int kRechteTaste = 2;  ///< Any button but the left one acts like this.

/// The press of a mouse button on a cell. Does nothing while no board lies on the playfield, and
/// nothing in a level that is won or lost.
void imgSar_MouseDown(Ansicht &ansicht, int Index, int Button);

/// Recounts the wrong cells from the tiles. The second one loses the level and ends the count;
/// otherwise the panel is brought up to date.
void ZugAuswerten(Ansicht &ansicht);

/// Sets the bonus of a won level by the mode and shows it.
void LevelwertungZeigen(Ansicht &ansicht);
