// The folder of all files that the program writes. It is determined once, at the start.
#pragma once

#include <QString>

#include "core/ansicht.h"

/// The full path of a file of the game: in `Datenordner` if `DatenordnerAktiv`, else in the
/// program's own folder. An empty name gives that folder, with a closing separator.
QString Datenpfad(const QString &name);

/// The folder in which the file dialogs open: the data folder, which is created again if it has
/// vanished, or its parent if that fails. Empty if there is no data folder.
QString Dialogordner();

/// Sets `Datenordner` and `DatenordnerAktiv`, and creates the folder if it is missing.
/// @param wurzel   the parent of that folder; a message is shown if it is empty.
void LegeDatenordnerFest(Ansicht &ansicht, const QString &wurzel);

/// Creates the data folder. A failure shows a message and changes nothing: later reads and writes
/// fail.
void LegeDatenordnerAn(Ansicht &ansicht, const QString &pfad);
