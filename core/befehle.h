/// @file
/// What the buttons of the main window do, told in terms of the game.
#pragma once

#include "core/ansicht.h"

/// Puts the game into the state in which the main window first waits for a player.
void WarteAufSpiel(Ansicht &ansicht);

// The handlers of the picture buttons that bear these names.
void imgNeuesSpiel_Click(Ansicht &ansicht);
void imgNextLevel_Click(Ansicht &ansicht);
void cmdWiederholen_Click(Ansicht &ansicht);
void imgEnde_Click(Ansicht &ansicht);

// The ticks of the two timers.
void ZeigeStart(Ansicht &ansicht);
void NaechsterLevelBlinkt(Ansicht &ansicht);

/// True if the points beat the lowest entry of the best list.
bool NeueBestmarke();

/// Points with which a game begins that starts behind the given number of skipped levels.
std::int32_t PunkteFuerStart(int uebersprungen, int modus);

/// Begins a game at a later level, in a mode of its own.
/// @param uebersprungen   levels that are not played, 0 to 25, @param modus 1 to 3.
void SpielAbLevelBeginnen(Ansicht &ansicht, int uebersprungen, int modus);
