/// @file
/// The sound of the game, in a library that is loaded when sound is first asked for: Qt Multimedia
/// and all that it brings along would make the start of the program a tenth longer.
#include <QAudioDevice>
#include <QCoreApplication>
#include <QMediaDevices>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>

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

extern "C" bool KlangGeraetDa() {
  const Stille stille;
  return !QMediaDevices::audioOutputs().isEmpty();
}

extern "C" void KlangSpiele(const QString &pfad) {
  // An effect is bound to the device that it was loaded for, and the default device may have
  // changed since the last one.
  delete Effekt;
  Effekt = new QSoundEffect(QCoreApplication::instance());
  Effekt->setSource(QUrl::fromLocalFile(pfad));
  Effekt->play();
}
