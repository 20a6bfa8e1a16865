// The settings file: one line with the mode of the game. Failures are never reported.
#pragma once

#include <QString>

#include "core/ansicht.h"

QString IniPfad();

/// Writes `Spielmodus`, replacing the file.
void SchreibeIni();

/// Sets `Spielmodus` from the file; Normal if that cannot be read or holds no mode. Also writes the
/// mode line, which nobody sees: the start goes on and replaces it.
void LeseIni(Ansicht &ansicht);
