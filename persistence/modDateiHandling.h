/// @file
/// Saved games: three lines with the level last finished, the points and the mode.
#pragma once

#include <QString>

#include "core/ansicht.h"

/// True if the folder of the game's data holds a saved game.
bool SpielstandVorhanden();

/// Asks whether the player wants to look for a saved game elsewhere if the folder has none.
/// @param weiter   set to false if the player does not; else left alone.
void SucheSpielstand(Ansicht &ansicht, bool &weiter);

/// Loads the file if its name ends in ".sar", else tells that it is no saved game.
void LadeGewaehlteDatei(Ansicht &ansicht, const QString &pfad);

/// Reads a saved game, asks for confirmation and begins the level after the stored one. A failure
/// is told with its number, see `Dateifehler`; the running game goes on then, as it does after a
/// no.
void LadeSpielstand(Ansicht &ansicht, const QString &pfad);

/// The path with the ending ".sar", which is appended unless it is there in this very case.
QString MitEndung(const QString &pfad);

/// Writes the game as it stands after the level just won. A failure is told with its number.
void SpeichereSpielstand(Ansicht &ansicht, const QString &pfad);
