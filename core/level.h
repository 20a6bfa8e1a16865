/// @file
/// How a level begins: its counters, its board, its start cells and free-cell marks.
#pragma once

#include <cstdint>

#include "core/ansicht.h"

/// Gems that are opened for the player at the start of a level.
/// @param level   1 to 40, @param modus 1 to 3.
std::int16_t StartfelderFuer(int level, int modus);

/// Free cells that are marked for the player at the start of a level, the same in all modes.
std::int16_t FreifelderFuer(int level);

/// Begins a game at level 1.
void SpielBeginnen(Ansicht &ansicht);

/// Raises `Level` and sets up that level, or ends the game behind level 40. Writes no clue numbers:
/// every caller runs `BerechneZahlen` afterwards.
void LevelBeginnen(Ansicht &ansicht);

/// Draws a cell from `von` to `bis` that holds no gem and puts one there.
/// @pre There is such a cell.
std::int16_t ZieheSarant(std::int16_t von, std::int16_t bis);

/// Draws a cell from `von` to `bis` that has not come up since all `Gezogen` were cleared.
/// @pre There is such a cell.
std::int16_t ZieheStartfeld(std::int16_t von, std::int16_t bis);

/// Opens `Startfelder` random gems by simulated clicks.
void ExternerKlick(Ansicht &ansicht);

/// Marks random free cells, as many as the level grants.
void MarkiereFreiesFeld(Ansicht &ansicht);

/// Takes away everything that tells of a won or lost level or of a game not begun, so that the
/// level that begins next stands in a clean playing phase.
void RaeumeLevelende(Ansicht &ansicht);

/// Stops the timer of an arrow and lets the arrow vanish.
void StoppePfeil(Ansicht &ansicht, Pfeil pfeil);
