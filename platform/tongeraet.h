/// @file
/// What a system does to play a wave file.
#pragma once

#include <QString>

/// Starts to play a file and returns at once; the one that still plays is cut off. A failure is
/// silent.
void SpieleWellendatei(const QString &pfad);
