/// @file
/// The sound devices of the machine, and how a wave file is played on them. Nothing here waits: a
/// sound server that does not answer is a machine without sound.
#pragma once

#include <QObject>
#include <QString>

/// Tells when the answer of SoundGeraetDa() has changed. Windows: never.
class Tonmelder : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

 signals:
  void Gewechselt();
};

/// The one that tells; the application owns it. The first call begins to ask for devices.
Tonmelder &DerTonmelder();

/// True if the system has at least one device that can play sound.
///
/// Windows: asked at each call. Other systems: what the sound server told last; false until it has
/// told something, and again when it has gone. Asking then looks for a new one, which may answer
/// later.
bool SoundGeraetDa();

/// Starts to play a file and returns at once; the one that still plays is cut off. A failure is
/// silent.
void SpieleWellendatei(const QString &pfad);
