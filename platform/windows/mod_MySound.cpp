#include "platform/mod_MySound.h"

#include <windows.h>
// Needs the header above.
#include <mmsystem.h>

#include <QDir>

namespace {

class Wellenausgabe final : public Soundgeraet {
 public:
  bool SoundGeraetDa() override { return waveOutGetNumDevs() != 0; }

  void SpieleSound(int n) override {
    const std::wstring datei = QDir::toNativeSeparators(Sounddatei(n)).toStdWString();
    if (SoundGeraetDa() && !datei.empty())
      sndPlaySoundW(datei.c_str(), SND_ASYNC | SND_NODEFAULT);
  }
};

}  // namespace

Soundgeraet &DasSoundgeraet() {
  static Wellenausgabe ausgabe;
  return ausgabe;
}
