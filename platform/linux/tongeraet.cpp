#include "platform/tongeraet.h"

#include <QAudioDevice>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>

#include "platform/mod_MySound.h"

namespace {

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

bool SoundGeraetDa() {
  const Stille stille;
  return !QMediaDevices::audioOutputs().isEmpty();
}

void SpieleWellendatei(const QString &pfad) {
  // An effect is bound to the device that it was loaded for, and the default device may have
  // changed since the last one.
  delete Effekt;
  Effekt = new QSoundEffect(QCoreApplication::instance());
  Effekt->setSource(QUrl::fromLocalFile(pfad));
  Effekt->play();
}
