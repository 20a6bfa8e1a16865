/// @file
/// The five best results of this machine: the list in memory, its file, and who may enter.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "core/ansicht.h"

inline constexpr int kBeste = 5;            ///< Entries of the list, numbered from 0, best first.
inline const QString kNiemand = "Niemand";  ///< The name of an entry that nobody holds.
inline const QString kNeuerSpieler = "Spieler";  ///< The name of an entry that was just made.

/// The list in memory: names and points as decimal text, taken from the file as they stand there.
/// After a failed load they hold the lines read before the failure, so they may be shorter than
/// five.
inline QStringList lstName;
inline QStringList lstPunkte;

inline std::int16_t BestenPlatz = -1;  ///< Entry that the player would take; -1: none.
inline bool BestenEintrag = false;     ///< The player has accepted an entry that is not named yet.

QString BestenlistePfad();

/// Writes the list of defaults over whatever stands there. A failure is not told.
void BestenlisteAnlegen();

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

/// The value of a text of points; a text without a value counts as 0.
std::int32_t PunkteWert(const QString &text);
