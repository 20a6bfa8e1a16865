/// @file
/// The commands behind the buttons of the main window, and the ticks of its timers.
#pragma once

#include "core/ansicht.h"

/// Shows the waiting state: no game has begun.
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

/// Points at the start of a game. @param uebersprungen   levels that are not played.
std::int32_t PunkteFuerStart(int uebersprungen, int modus);

/// Begins a game with the level after the skipped ones.
/// @param uebersprungen   levels that are not played, 0 to 25, @param modus 1 to 3.
void SpielAbLevelBeginnen(Ansicht &ansicht, int uebersprungen, int modus);
