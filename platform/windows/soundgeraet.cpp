#include "platform/soundgeraet.h"

#include <windows.h>
// Needs the header above.
#include <mmsystem.h>

#include <QDir>

Soundmelder &DerSoundmelder() {
  static Soundmelder melder;
  return melder;
}

bool SoundGeraetDa() {
  return waveOutGetNumDevs() != 0;
}

void SpieleWellendatei(const QString &pfad) {
  if (SoundGeraetDa())
    sndPlaySoundW(QDir::toNativeSeparators(pfad).toStdWString().c_str(), SND_ASYNC | SND_NODEFAULT);
}
