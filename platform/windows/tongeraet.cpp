#include "platform/tongeraet.h"

#include <windows.h>
// Needs the header above.
#include <mmsystem.h>

#include <QDir>

#include "platform/mod_MySound.h"

bool SoundGeraetDa() {
  return waveOutGetNumDevs() != 0;
}

void SpieleWellendatei(const QString &pfad) {
  sndPlaySoundW(QDir::toNativeSeparators(pfad).toStdWString().c_str(), SND_ASYNC | SND_NODEFAULT);
}
