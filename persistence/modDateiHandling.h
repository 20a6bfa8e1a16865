// Saved games: three lines with the level last finished, the points and the mode.
#pragma once

#include <QString>

#include "core/ansicht.h"

/// True if the data folder holds a file named "*.sar" or "*.SAR", hidden files included.
bool SpielstandVorhanden();

/// If the data folder holds no saved game, asks whether the player wants to look elsewhere.
/// @param weiter   becomes false if the player does not; else it is not changed.
void SucheSpielstand(Ansicht &ansicht, bool &weiter);

/// Loads the file if its name ends in ".sar", not ".SAR"; else shows that it is no saved game.
void LadeGewaehlteDatei(Ansicht &ansicht, const QString &pfad);

/// Reads a saved game, asks for confirmation and begins the level after the stored one. A failure
/// shows its number, see `Dateifehler`. After a no and after a failure before the question, the
/// running game is unchanged. The points are converted after the question: if that fails, `Level`
/// already has the stored value.
void LadeSpielstand(Ansicht &ansicht, const QString &pfad);

/// The path, with ".sar" appended unless it already ends so, in lower case.
QString MitEndung(const QString &pfad);

/// Writes the game as it stands after the level just won. A failure shows its number.
void SpeichereSpielstand(Ansicht &ansicht, const QString &pfad);
