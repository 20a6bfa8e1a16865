// The settings file: one line with the mode of the game. Failures are never reported.
#pragma once

#include <QString>

#include "core/ansicht.h"

/// True for the number of a mode. A file can hold any number.
constexpr bool IstModus(int modus) {
  return modus >= 1 && modus <= kModi;
}

QString IniPfad();

/// Writes `Spielmodus`, replacing the file.
void SchreibeIni();

/// Sets `Spielmodus` from the file and shows it in `lblModus`. A file that cannot be read or holds
/// no mode gives Normal and does not change `lblModus`.
void LeseIni(Ansicht &ansicht);
