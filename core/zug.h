/// @file
/// A move: what a press on a cell does, and what the board is worth afterwards.
#pragma once

#include <cstdint>

#include "core/ansicht.h"

inline constexpr int kLinkeTaste = 1;
inline constexpr int kRechteTaste = 2;  ///< Any button but the left one acts like this.

/// The press of a mouse button on a cell. Does nothing while no board lies on the playfield, and
/// nothing in a level that is won or lost.
void imgSar_MouseDown(Ansicht &ansicht, int Index, int Button);

/// Counts the whole board from the tiles; the second wrong cell loses the level.
void ZugAuswerten(Ansicht &ansicht);

/// Sets the bonus of a won level by the mode and shows it.
void LevelwertungZeigen(Ansicht &ansicht);

/// Gems of the board that are not opened yet.
std::int16_t ZaehleRest(const Ansicht &ansicht);

/// `Punkte` + `Levelpunkte`; a sum beyond 32 bits stays at the end of the range.
std::int32_t SummePunkte();
