// A press on a cell and its evaluation.
#pragma once

#include "core/ansicht.h"

inline constexpr int kLinkeTaste = 1;
inline constexpr int kRechteTaste = 2;  ///< Stands for every button except the left one.

/// Handles the press of a mouse button on a cell. Does nothing before the first level or when the
/// level is won or lost.
/// @param Index   1 to 100.
void imgSar_MouseDown(Ansicht &ansicht, int Index, int Button);

/// Recounts the wrong cells from the tiles. The second one stops the count and loses the level.
/// With fewer, the panel is refreshed.
void ZugAuswerten(Ansicht &ansicht);

/// Sets `Levelpunkte` to the bonus of the mode and shows it.
void LevelwertungZeigen(Ansicht &ansicht);
