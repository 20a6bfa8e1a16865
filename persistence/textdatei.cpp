#include "persistence/textdatei.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <charconv>
#include <filesystem>
#include <system_error>

#include "platform/codepage.h"
#include "platform/modExistiertDatei.h"
#include "platform/system.h"

namespace {

/// The bytes of a text within a line.
/// @param ersatz   in place of a character that the code page lacks, and of a line end, which would
///                 shift all following lines.
QByteArray Kodiert(const QString &text, const QByteArray &ersatz) {
  QByteArray bytes;
  for (const char32_t zeichen : text.normalized(QString::NormalizationForm_C).toUcs4()) {
    const bool zeilenende = zeichen == U'\r' || zeichen == U'\n';
    const QByteArray kodiert = zeilenende ? QByteArray() : InCodepage(zeichen);
    bytes.append(kodiert.isEmpty() ? ersatz : kodiert);
  }
  return bytes;
}

/// Why a path cannot be that of a file, whether there is one or not. Opening a pipe may wait for
/// ever, and a folder, a device or a loop of links must not be replaced.
Dateifehler Pfadfehler(const QString &pfad) {
  const QFileInfo datei(pfad);
  if (!QFileInfo(datei.path()).isDir())
    return Dateifehler::PfadNichtGefunden;
  std::error_code fehler;
  const auto art = std::filesystem::status(datei.filesystemFilePath(), fehler).type();
  if (art == std::filesystem::file_type::regular || art == std::filesystem::file_type::not_found)
    return Dateifehler::Keiner;
  return fehler == std::errc::filename_too_long ? Dateifehler::Anderer
                                                : Dateifehler::ZugriffVerweigert;
}

/// Replaces a file or makes a new one. After a failure the old file is still there, unless its
/// folder allows no second file, so that the file itself has to be rewritten. After success the
/// disk has confirmed the content.
Dateifehler Ersetze(const QString &pfad, const QByteArray &inhalt) {
  const QFileInfo alt(pfad);
  QSaveFile datei(alt.exists() ? alt.canonicalFilePath() : pfad);  // Keeps a link a link.
  datei.setDirectWriteFallback(true);
  if (!datei.open(QIODevice::WriteOnly))
    return Dateifehler::ZugriffVerweigert;
  datei.write(inhalt);
  // commit() does not look at the result of these two, and replaces the old file in any case.
  if (datei.flush() && Synchronisiere(datei.handle()) && datei.commit())
    return Dateifehler::Keiner;
  return datei.error() == QFileDevice::ResourceError ? Dateifehler::DatentraegerVoll
                                                     : Dateifehler::Anderer;
}

}  // namespace

Textzeilen LiesZeilen(const QString &pfad, int anzahl) {
  Textzeilen gelesen{{}, Pfadfehler(pfad)};
  QFile datei(pfad);
  if (gelesen.Fehler == Dateifehler::Keiner && !datei.open(QIODevice::ReadOnly))
    gelesen.Fehler =
        ExistiertDatei(pfad) ? Dateifehler::ZugriffVerweigert : Dateifehler::NichtGefunden;
  if (gelesen.Fehler != Dateifehler::Keiner)
    return gelesen;
  QByteArray zeile;
  char byte = 0;
  bool nachCr = false;
  while (gelesen.Zeilen.size() < anzahl && datei.getChar(&byte)) {
    const bool zweiteHaelfte = nachCr && byte == '\n';
    nachCr = byte == '\r';
    if (zweiteHaelfte)
      continue;
    if (byte == '\r' || byte == '\n') {
      gelesen.Zeilen.append(AusCodepage(zeile));
      zeile.clear();
    } else if (zeile.size() < kLaengsteZeile) {
      zeile.append(byte);
    } else {
      gelesen.Fehler = Dateifehler::Anderer;
      return gelesen;
    }
  }
  if (datei.error() != QFileDevice::NoError) {
    gelesen.Fehler = Dateifehler::Anderer;
    return gelesen;
  }
  if (!zeile.isEmpty())
    gelesen.Zeilen.append(AusCodepage(zeile));
  if (gelesen.Zeilen.size() < anzahl)
    gelesen.Fehler = Dateifehler::Dateiende;
  return gelesen;
}

Dateifehler SchreibeZeilen(const QString &pfad, const QStringList &zeilen) {
  QByteArray inhalt;
  for (const QString &zeile : zeilen)
    inhalt.append(Kodiert(zeile, "?") + "\r\n");
  const Dateifehler fehler = Pfadfehler(pfad);
  return fehler == Dateifehler::Keiner ? Ersetze(pfad, inhalt) : fehler;
}

QString Speicherbar(const QString &text) { return AusCodepage(Kodiert(text, "")); }

template <typename Zahl>
Dateifehler InZahl(const QString &text, Zahl &wert) {
  const QByteArray ziffern = text.toLatin1().trimmed();
  Zahl zahl = 0;
  const auto [rest, fehler] = std::from_chars(ziffern.begin(), ziffern.end(), zahl);
  if (fehler == std::errc::invalid_argument || rest != ziffern.end())
    return Dateifehler::KeineZahl;
  if (fehler != std::errc())
    return Dateifehler::Zahlenbereich;
  wert = zahl;
  return Dateifehler::Keiner;
}

template Dateifehler InZahl(const QString &text, std::int16_t &wert);
template Dateifehler InZahl(const QString &text, std::int32_t &wert);
