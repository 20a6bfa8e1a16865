// The start of a level: counters, board, start cells and free-cell marks.
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

/// Raises `Level` and sets up that level, or ends the game after level 40. Does not write the clue
/// numbers: call `BerechneZahlen` afterwards.
void LevelBeginnen(Ansicht &ansicht);

/// Draws a cell from `von` to `bis` that holds no gem, and puts a gem there. There must be one.
std::int16_t ZieheSarant(std::int16_t von, std::int16_t bis);

/// Draws a cell from `von` to `bis` without `Gezogen`, and sets it. There must be one.
std::int16_t ZieheStartfeld(std::int16_t von, std::int16_t bis);

/// Opens `Startfelder` random gems by simulated left clicks.
void ExternerKlick(Ansicht &ansicht);

/// Marks random free cells, as many as the level grants.
void MarkiereFreiesFeld(Ansicht &ansicht);

/// Resets errors and level points, hides the buttons of a won or lost level and stops both arrows.
void RaeumeLevelende(Ansicht &ansicht);
