#include "persistence/textdatei.h"

#include <QFile>
#include <QFileInfo>
#include <charconv>

#include "platform/codepage.h"
#include "platform/dateiersatz.h"
#include "platform/modExistiertDatei.h"

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

/// Folders, pipes and devices bear names of files, but opening them may wait for ever, and
/// replacing them does harm.
bool IstKeineDatei(const QString &pfad) {
  const QFileInfo info(pfad);
  return info.exists() && !info.isFile();
}

/// Why a file could not be opened; Qt does not tell the causes apart.
Dateifehler Oeffnungsfehler(const QString &pfad) {
  if (!QFileInfo(QFileInfo(pfad).path()).isDir())
    return Dateifehler::PfadNichtGefunden;
  return ExistiertDatei(pfad) ? Dateifehler::ZugriffVerweigert : Dateifehler::NichtGefunden;
}

template <typename Zahl>
Dateifehler Konvertiert(const QString &text, Zahl &wert) {
  const QByteArray ziffern = text.toLatin1();
  const char *anfang = ziffern.begin();
  const char *ende = ziffern.end();
  while (anfang != ende && *anfang == ' ')
    ++anfang;
  while (anfang != ende && ende[-1] == ' ')
    --ende;
  Zahl zahl = 0;
  const auto [rest, fehler] = std::from_chars(anfang, ende, zahl);
  if (fehler == std::errc::invalid_argument || rest != ende)
    return Dateifehler::KeineZahl;
  if (fehler != std::errc())
    return Dateifehler::Zahlenbereich;
  wert = zahl;
  return Dateifehler::Keiner;
}

}  // namespace

Textzeilen LiesZeilen(const QString &pfad, int anzahl) {
  QFile datei(pfad);
  if (IstKeineDatei(pfad) || !datei.open(QIODevice::ReadOnly))
    return {{}, Oeffnungsfehler(pfad)};
  Textzeilen gelesen;
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
  if (IstKeineDatei(pfad))
    return Dateifehler::ZugriffVerweigert;
  QByteArray inhalt;
  for (const QString &zeile : zeilen)
    inhalt.append(Kodiert(zeile, "?") + "\r\n");
  return ErsetzeDatei(pfad, inhalt);
}

QString Speicherbar(const QString &text) {
  return AusCodepage(Kodiert(text, ""));
}

Dateifehler LiesZahl(const QString &text, std::int16_t &wert) {
  return Konvertiert(text, wert);
}

Dateifehler LiesZahl(const QString &text, std::int32_t &wert) {
  return Konvertiert(text, wert);
}
