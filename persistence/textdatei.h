/// @file
/// Small text files, read and written as a whole: lines ended by CR LF, in the code page that
/// codepage.h tells of.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "platform/dateifehler.h"

/// Longest line that is read, in bytes; longer than any text that the game can write.
inline constexpr qsizetype kLaengsteZeile = 65536;

/// Lines as they stood in the file, without their ends.
struct Textzeilen {
  QStringList Zeilen;  ///< After a failure: the lines read up to it.
  Dateifehler Fehler = Dateifehler::Keiner;
};

/// Reads the first lines of a file. CR LF, LF and CR alone end a line, and the end of the file ends
/// a last line that has characters.
/// @param anzahl   lines to be read; what follows them is not looked at. Fewer lines: `Dateiende`.
Textzeilen LiesZeilen(const QString &pfad, int anzahl);

/// Replaces a file by these lines, each ended by CR LF, as a whole or not at all. Combining
/// characters are composed where Unicode can (NFC). A character that the code page lacks and a line
/// end within a text are written as "?".
Dateifehler SchreibeZeilen(const QString &pfad, const QStringList &zeilen);

/// What a file can hold of a line: combining characters composed (NFC), all other characters that
/// the code page lacks left out. SchreibeZeilen() writes the result without any "?".
QString Speicherbar(const QString &text);

/// Converts decimal digits with an optional leading "-" and blanks around them. On a failure,
/// `KeineZahl` or `Zahlenbereich`, the value is left alone.
Dateifehler LiesZahl(const QString &text, std::int16_t &wert);
Dateifehler LiesZahl(const QString &text, std::int32_t &wert);
