/// @file
/// What the fuzz targets share: a fresh game whose data folder lies in memory where the system has
/// such a place.
#pragma once

#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdlib>

#include "persistence/modBeste.h"
#include "tests/feldansicht.h"
#include "tests/platform/dateien.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t groesse);

/// Must be called at the start of each run.
inline QString FrischesSpiel() {
  static const QTemporaryDir ordner(QFileInfo("/dev/shm").isWritable() ? "/dev/shm/fuzz-XXXXXX"
                                                                       : QString());
  spiel = {};
  spiel.Datenordner = ordner.path().toStdString();
  spiel.DatenordnerAktiv = true;
  lstName.clear();
  lstPunkte.clear();
  return ordner.path();
}

inline QByteArray Bytes(const std::uint8_t *daten, std::size_t groesse) {
  return {reinterpret_cast<const char *>(daten), static_cast<qsizetype>(groesse)};
}

/// Ends the run as a finding.
inline void Verlange(bool bedingung) {
  if (!bedingung)
    std::abort();
}
