#include "platform/mod_MySound.h"

#include <QFileInfo>
#include <array>

#include "platform/pfade.h"
#include "platform/soundgeraet.h"

namespace {

constexpr std::array<const char *, 6> kSoundDateien{"WHOOSH.WAV", "FRAGE.WAV", "FEHLER.WAV",
                                                    "BLIP.WAV",   "START.WAV", "TADA.WAV"};

}  // namespace

void SpieleSound(int n) {
  const auto index = static_cast<std::size_t>(n - 1);
  if (index >= kSoundDateien.size())
    return;
  const QString pfad = MitBackslash(Ressourcenordner()) + kSoundDateien[index];
  if (QFileInfo(pfad).isFile())
    SpieleWellendatei(pfad);
}
