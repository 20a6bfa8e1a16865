#include "platform/mod_MySound.h"

#include <QFileInfo>
#include <array>

#include "platform/pfade.h"
#include "platform/tongeraet.h"

namespace {

constexpr std::array<const char *, 6> kDateinamen{"WHOOSH.WAV", "FRAGE.WAV", "FEHLER.WAV",
                                                  "BLIP.WAV",   "START.WAV", "TADA.WAV"};

std::array<QString, kDateinamen.size()> SoundDateien;

}  // namespace

void SoundVorbereiten(const QString &ordner) {
  for (std::size_t i = 0; i < kDateinamen.size(); ++i) {
    const QString pfad = MitBackslash(ordner) + kDateinamen[i];
    SoundDateien[i] = QFileInfo(pfad).isFile() ? pfad : QString();
  }
}

void SpieleSound(int n) {
  const auto index = static_cast<std::size_t>(n - 1);
  if (index < SoundDateien.size() && !SoundDateien[index].isEmpty() && SoundGeraetDa())
    SpieleWellendatei(SoundDateien[index]);
}
