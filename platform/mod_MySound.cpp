#include "platform/mod_MySound.h"

#include <QAudioDevice>
#include <QCoreApplication>
#include <QFileInfo>
#include <QMediaDevices>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>
#include <array>

#include "platform/pfade.h"

namespace {

constexpr std::array<const char *, 6> kDateinamen{"WHOOSH.WAV", "FRAGE.WAV", "FEHLER.WAV",
                                                  "BLIP.WAV",   "START.WAV", "TADA.WAV"};

std::array<QString, kDateinamen.size()> SoundDateien;

/// The effect that was started last. The application owns it, so that it never outlives the
/// connection to the sound server.
QPointer<QSoundEffect> Effekt;

/// Keeps Qt from telling standard error that a machine has no sound server.
class Stille {
 public:
  Stille()
      : vorher(
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {})) {
  }
  ~Stille() { qInstallMessageHandler(vorher); }
  Stille(const Stille &) = delete;
  Stille &operator=(const Stille &) = delete;

 private:
  QtMessageHandler vorher;
};

}  // namespace

void SoundVorbereiten(const QString &ordner) {
  for (std::size_t i = 0; i < kDateinamen.size(); ++i) {
    const QString pfad = MitBackslash(ordner) + kDateinamen[i];
    SoundDateien[i] = QFileInfo(pfad).isFile() ? pfad : QString();
  }
}

bool SoundGeraetDa() {
  const Stille stille;
  return !QMediaDevices::audioOutputs().isEmpty();
}

void SpieleSound(int n) {
  const auto index = static_cast<std::size_t>(n - 1);
  if (index >= SoundDateien.size() || SoundDateien[index].isEmpty() || !SoundGeraetDa())
    return;
  // An effect is bound to the device that it was loaded for, and the default device may have
  // changed since the last one.
  delete Effekt;
  Effekt = new QSoundEffect(QCoreApplication::instance());
  Effekt->setSource(QUrl::fromLocalFile(SoundDateien[index]));
  Effekt->play();
}
