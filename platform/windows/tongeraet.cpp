#include "platform/tongeraet.h"

#include <windows.h>
// Needs the header above.
#include <mmsystem.h>

#include <QDir>

Tonmelder &DerTonmelder() {
  static Tonmelder melder;
  return melder;
}

bool SoundGeraetDa() {
  return waveOutGetNumDevs() != 0;
}

void SpieleWellendatei(const QString &pfad) {
  if (SoundGeraetDa())
    sndPlaySoundW(QDir::toNativeSeparators(pfad).toStdWString().c_str(), SND_ASYNC | SND_NODEFAULT);
}
