#include "platform/textdatei.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <array>
#include <charconv>

#include "platform/modExistiertDatei.h"

namespace {

/// What the bytes 0x80 to 0x9F stand for; all other bytes stand for the character of their value.
constexpr std::array<char16_t, 32> kBesondere{
    u'€',      u'\u0081', u'‚', u'ƒ', u'„', u'…',      u'†', u'‡',       //
    u'ˆ',      u'‰',      u'Š', u'‹', u'Œ', u'\u008D', u'Ž', u'\u008F',  //
    u'\u0090', u'‘',      u'’', u'“', u'”', u'•',      u'–', u'—',       //
    u'˜',      u'™',      u'š', u'›', u'œ', u'\u009D', u'ž', u'Ÿ'};
constexpr unsigned kErstesBesondere = 0x80;

QChar Dekodiert(char byte) {
  const unsigned wert = static_cast<unsigned char>(byte);
  const unsigned stelle = wert - kErstesBesondere;
  return stelle < kBesondere.size() ? QChar(kBesondere[stelle]) : QChar(wert);
}

char Kodiert(char32_t zeichen) {
  if (zeichen == U'\r' || zeichen == U'\n')
    return '?';  // It would shift all lines behind it.
  const bool besonders = zeichen - kErstesBesondere < kBesondere.size();
  if (zeichen <= 0xFF && !besonders)
    return static_cast<char>(zeichen);
  const auto fund = std::find(kBesondere.begin(), kBesondere.end(), zeichen);
  return fund == kBesondere.end()
             ? '?'
             : static_cast<char>(kErstesBesondere +
                                 static_cast<unsigned>(fund - kBesondere.begin()));
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

Dateifehler Schreibfehler(const QSaveFile &datei) {
  if (datei.error() == QFileDevice::ResourceError)
    return Dateifehler::DatentraegerVoll;
  if (datei.error() == QFileDevice::WriteError && datei.isOpen())
    return Dateifehler::Anderer;
  const Dateifehler fehler = Oeffnungsfehler(datei.fileName());
  // That a new file does not exist yet is not why it cannot be written.
  return fehler == Dateifehler::NichtGefunden ? Dateifehler::ZugriffVerweigert : fehler;
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
  QString zeile;
  char byte = 0;
  bool nachCr = false;
  while (gelesen.Zeilen.size() < anzahl && datei.getChar(&byte)) {
    const bool zweiteHaelfte = nachCr && byte == '\n';
    nachCr = byte == '\r';
    if (zweiteHaelfte)
      continue;
    if (byte == '\r' || byte == '\n') {
      gelesen.Zeilen.append(zeile);
      zeile.clear();
    } else if (zeile.size() < kLaengsteZeile) {
      zeile.append(Dekodiert(byte));
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
    gelesen.Zeilen.append(zeile);
  if (gelesen.Zeilen.size() < anzahl)
    gelesen.Fehler = Dateifehler::Dateiende;
  return gelesen;
}

Dateifehler SchreibeZeilen(const QString &pfad, const QStringList &zeilen) {
  QSaveFile datei(pfad);
  if (IstKeineDatei(pfad) || !datei.open(QIODevice::WriteOnly))
    return Schreibfehler(datei);
  for (const QString &zeile : zeilen) {
    for (const char32_t zeichen : zeile.toUcs4())
      datei.putChar(Kodiert(zeichen));
    datei.write("\r\n");
  }
  // commit() would lose a failure of the last flush and replace the old file by a short one.
  return datei.flush() && datei.commit() ? Dateifehler::Keiner : Schreibfehler(datei);
}

Dateifehler LiesZahl(const QString &text, std::int16_t &wert) {
  return Konvertiert(text, wert);
}

Dateifehler LiesZahl(const QString &text, std::int32_t &wert) {
  return Konvertiert(text, wert);
}
