// Small text files: lines that end with CR LF, in the code page of platform/codepage.h. Also what
// can go wrong with a file.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

/// Outcome of a file operation. The numbers stand behind "Fehlernummer: " in the messages.
enum class Dateifehler : int {
  Keiner = 0,
  NichtGefunden = 1,      ///< No such file.
  ZugriffVerweigert = 2,  ///< Not allowed, or something that is no file bears the name.
  PfadNichtGefunden = 3,  ///< The folder does not exist.
  DatentraegerVoll = 4,   ///< No space left.
  Dateiende = 5,          ///< Fewer lines than expected.
  KeineZahl = 6,          ///< A text that is no whole number.
  Zahlenbereich = 7,      ///< A whole number that is too small or too large.
  Anderer = 8,  ///< Anything else: a name or a line that is too long, a defect of the disk.
};

/// Longest line that is read, in bytes; longer than any text that the game can write.
inline constexpr qsizetype kLaengsteZeile = 65536;

/// Lines as they stood in the file, without their ends.
struct Textzeilen {
  QStringList Zeilen;  ///< After a failure: the lines read up to it.
  Dateifehler Fehler = Dateifehler::Keiner;
};

/// Reads the first lines of a file. CR LF, LF and CR alone end a line; the last line needs no end.
/// @param anzahl   lines to read; the rest of the file is ignored. Fewer lines give `Dateiende`.
Textzeilen LiesZeilen(const QString &pfad, int anzahl);

/// Writes a file that holds these lines. If this fails, a file that was there is unchanged, unless
/// it is writable in a folder that is not: then it is written in place. Combining characters are
/// composed (NFC). A character that the code page lacks and a line end within a text become "?".
Dateifehler SchreibeZeilen(const QString &pfad, const QStringList &zeilen);

/// The part of a text that a file can hold: combining characters are composed (NFC), and what the
/// code page lacks is left out.
QString Speicherbar(const QString &text);

/// Converts decimal digits with an optional leading "-" and blanks around them. A failure,
/// `KeineZahl` or `Zahlenbereich`, does not change the value.
/// @tparam Zahl   std::int16_t or std::int32_t
template <typename Zahl>
Dateifehler InZahl(const QString &text, Zahl &wert);
