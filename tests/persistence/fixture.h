// A fresh game with a data folder of its own, as real as the player's.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "persistence/modBeste.h"
#include "tests/array_screen.h"
#include "tests/files.h"

class DataFixture : public testing::Test {
 protected:
  QTemporaryDir folder;
  QString path = folder.filePath("spiel.sar");
  ArrayScreen screen;

  DataFixture() {
    spiel = {};
    spiel.Datenordner = folder.path().toStdString();
    spiel.DatenordnerAktiv = true;
  }
  /// Since the last time a message that begins like this has been shown, or none.
  void ExpectMessage(const std::string &begin) {
    EXPECT_EQ(screen.shown["message"].substr(0, begin.empty() ? 1 : begin.size()), begin);
    screen.shown["message"].clear();
  }
};
