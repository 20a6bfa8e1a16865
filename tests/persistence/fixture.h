// A fresh game with a data folder of its own, as real as the player's.
#pragma once

#include <QTemporaryDir>

#include "persistence/modBeste.h"
#include "tests/approved.h"
#include "tests/array_screen.h"
#include "tests/files.h"

class DataFixture : public testing::Test {
 protected:
  QTemporaryDir folder;
  QString path = folder.filePath("spiel.sar");
  ArrayScreen screen;
  Transcript told;

  DataFixture() {
    spiel = {};
    spiel.Datenordner = folder.path().toStdString();
    spiel.DatenordnerAktiv = true;
    screen.Tell();
  }
  /// Tells the first bytes of a file or a text, and what has changed on the screen.
  void Tell(const QByteArray &bytes) {
    told << bytes.left(60).toPercentEncoding(" ").data()
         << QString::fromStdString(screen.Tell()).replace(folder.path(), "FOLDER").toStdString();
  }
};
