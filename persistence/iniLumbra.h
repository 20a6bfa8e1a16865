/// @file
/// The settings file: one line that holds the mode of the game. No failure of it is ever reported.
#pragma once

#include <QString>

#include "core/ansicht.h"

/// True for the numbers that name a mode; a file can hold any other.
constexpr bool IstModus(int modus) {
  return modus >= 1 && modus <= kModi;
}

QString IniPfad();

/// Writes `Spielmodus` in place of whatever the file holds.
void SchreibeIni();

/// Sets `Spielmodus` from the file and shows it in `lblModus`. A file that cannot be read or holds
/// no mode gives Normal, without showing it.
void LeseIni(Ansicht &ansicht);
