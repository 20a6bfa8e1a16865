/// @file
/// The folder of all files that the program writes. Settled once, when the program starts.
#pragma once

#include <QString>

#include "core/ansicht.h"

/// The full path of a file of the game: in `Datenordner` while that is in use, else in the
/// program's own folder. An empty name gives the folder itself, with its closing separator.
QString Datenpfad(const QString &name);

/// The folder in which the file dialogs open; empty if there is no folder of the game's own.
QString Dialogordner();

/// Settles `Datenordner` and `DatenordnerAktiv`, and creates the folder if it is missing.
/// @param wurzel   the place of that folder; the player is told if it is empty.
void LegeDatenordnerFest(Ansicht &ansicht, const QString &wurzel);

/// Creates the data folder. A failure is told and changes nothing: later reads and writes fail.
void LegeDatenordnerAn(Ansicht &ansicht, const QString &pfad);
