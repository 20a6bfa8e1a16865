#include "platform/mod_MySound.h"

#include <QFileInfo>
#include <array>

#include "platform/pfade.h"

QString Sounddatei(int n) {
  constexpr std::array kSoundDateien{"WHOOSH.WAV", "FRAGE.WAV", "FEHLER.WAV",
                                     "BLIP.WAV",   "START.WAV", "TADA.WAV"};
  const QString pfad =
      MitBackslash(Ressourcenordner()) + kSoundDateien.at(static_cast<std::size_t>(n - 1));
  return QFileInfo(pfad).isFile() ? pfad : QString();
}
