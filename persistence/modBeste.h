/// @file
/// The five best results of this machine: the list in memory (`spiel.Beste`), its file, and who may
/// enter.
#pragma once

#include <QString>
#include <cstdint>
#include <string>
#include <vector>

#include "core/ansicht.h"

inline const std::string kNiemand = "Niemand";       ///< The name of an entry that nobody holds.
inline const std::string kNeuerSpieler = "Spieler";  ///< The name of an entry that was just made.

QString BestenlistePfad();

/// Writes the list of defaults over whatever stands there.
/// @return false if that failed; the player is not told.
bool BestenlisteAnlegen();

/// Reads the file into the list in memory and sets `Bestenschwelle`. A failure is told with its
/// number, see `Dateifehler`; file and `Bestenschwelle` stay as they are.
void BestenlisteLaden(Ansicht &ansicht);

/// Writes the list in memory and sets `Bestenschwelle`. A failure is told; file and
/// `Bestenschwelle` stay as they are.
void BestenlisteSpeichern(Ansicht &ansicht);

/// Offers the player a place in the list if the points suffice, or tells that they do not.
void BestenlistePruefen(Ansicht &ansicht);

/// Inserts an entry at `BestenPlatz` into the list in memory and lets the player type the name. The
/// file is written when the player is done with that.
void BestenlisteEintragen(Ansicht &ansicht);

/// An entry of one of the two lists in memory, which a failed load may have left short: an entry
/// that is missing is empty.
std::string Eintrag(const std::vector<std::string> &liste, int platz);

/// The value of a text of points; a text without a value counts as 0.
std::int32_t PunkteWert(const std::string &text);
