// The five best results of this machine: the list in memory (`spiel.Beste`), its file, and the
// test whether a player may enter.
#pragma once

#include <QString>
#include <cstdint>
#include <string>
#include <vector>

#include "core/ansicht.h"

inline const std::string kNiemand = "Niemand";       ///< The name of a default entry.
inline const std::string kNeuerSpieler = "Spieler";  ///< The name of a new entry.

QString BestenlistePfad();

/// Writes the default list, replacing the file.
/// @return false after a failure, which shows no message.
bool BestenlisteAnlegen();

/// Reads the file into the list in memory and sets `Bestenschwelle`. A failure shows its number,
/// see `Dateifehler`, and does not change the file and `Bestenschwelle`.
void BestenlisteLaden(Ansicht &ansicht);

/// Writes the list in memory and sets `Bestenschwelle`. A failure shows a message and does not
/// change `Bestenschwelle`.
void BestenlisteSpeichern(Ansicht &ansicht);

/// Offers the player a place in the list if the points suffice, else shows that they do not.
void BestenlistePruefen(Ansicht &ansicht);

/// Inserts an entry at `BestenPlatz` into the list in memory and opens the window in which the
/// player types the name. That window writes the file.
void BestenlisteEintragen(Ansicht &ansicht);

/// An entry of one of the two lists in memory. After a failed load they can be short; a missing
/// entry is empty.
std::string Eintrag(const std::vector<std::string> &liste, int platz);

/// Converts a text of points; 0 if it is no number.
std::int32_t PunkteWert(const std::string &text);
