// The commands of the buttons of the main window, and the ticks of its timers.
#pragma once

#include "core/ansicht.h"

/// Shows the state before the first game.
void WarteAufSpiel(Ansicht &ansicht);

// Click handlers of the picture buttons.
void imgNeuesSpiel_Click(Ansicht &ansicht);
void imgNextLevel_Click(Ansicht &ansicht);
void cmdWiederholen_Click(Ansicht &ansicht);
void imgEnde_Click(Ansicht &ansicht);

// The ticks of the two timers.
void ZeigeStart(Ansicht &ansicht);
void NaechsterLevelBlinkt(Ansicht &ansicht);

/// True if the points beat the lowest entry of the best list.
bool NeueBestmarke();

/// Points at the start of a game. @param uebersprungen   levels that are skipped.
std::int32_t PunkteFuerStart(int uebersprungen, int modus);

/// Begins a game with the level after the skipped ones.
/// @param uebersprungen   number of skipped levels, 0 to 39, @param modus 1 to 3.
void SpielAbLevelBeginnen(Ansicht &ansicht, int uebersprungen, int modus);
