/// @file
/// Sound effects from wave files. No failure of sound is ever reported.
#pragma once

#include <QString>

/// Looks up the wave files of the effects in a folder. An effect without a file stays silent.
void SoundVorbereiten(const QString &ordner);

/// True if the system has at least one device that can play sound.
bool SoundGeraetDa();

/// Starts an effect and returns at once; the one that still plays is cut off. Whether there is a
/// device is asked at each call. Needs an event loop to be heard.
/// @param n   1 to 6, any other number is silent.
void SpieleSound(int n);
