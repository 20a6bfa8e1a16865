// The sound devices of the machine, and the playing of a wave file. No call waits for the sound
// server; without an answer the machine counts as one without sound.
#pragma once

#include <QObject>
#include <QString>

/// Signals that the result of SoundGeraetDa() has changed. Windows: never.
class Soundmelder : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

 signals:
  void Gewechselt();
};

/// The only instance, owned by the application. On Linux the first call connects to the server.
Soundmelder &DerSoundmelder();

/// True if the system has at least one device that can play sound.
///
/// Windows: asked at each call. Other systems: what the sound server last reported; false before
/// its first report and after the connection is lost. The call then connects again, which takes
/// effect later.
bool SoundGeraetDa();

/// Starts to play a file and returns at once. A sound that is still playing is cut off. A failure
/// is silent.
void SpieleWellendatei(const QString &pfad);
