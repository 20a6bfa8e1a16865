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
  /// Exactly this one message since the last call, word for word.
  void ExpectMessage(const Meldung &expected, const QByteArray &trace = "") {
    std::string told;
    for (const Meldung &message : screen.messages)
      told += message.lblMeldung + message.lblTitel;
    EXPECT_EQ(told, expected.lblMeldung + expected.lblTitel) << trace.data();
    screen.messages.clear();
  }
};
