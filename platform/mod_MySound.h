// Sound effects by number, and the devices that play them. No call waits for the sound server, and
// no failure is ever reported.
#pragma once

#include <QObject>
#include <QString>

/// The sound of the machine. Linux: the server's answers need a running event loop.
class Soundgeraet : public QObject {
  Q_OBJECT

 public:
  /// True if the system has at least one device that can play sound.
  ///
  /// Windows: asked at each call. Linux: what the sound server last reported; false before its
  /// first report and after the connection is lost. The call then connects again, which takes
  /// effect later.
  virtual bool SoundGeraetDa() = 0;

  /// Starts an effect and returns at once. An effect that is still playing is cut off. One whose
  /// file is missing is silent.
  /// @param n   1 to 6.
  virtual void SpieleSound(int n) = 0;

 signals:
  /// The result of SoundGeraetDa() has changed. Windows: never.
  void Gewechselt();
};

/// The only instance. On Linux the first call connects to the server.
Soundgeraet &DasSoundgeraet();

/// The path of an effect's file; empty if there is none.
QString Sounddatei(int n);
