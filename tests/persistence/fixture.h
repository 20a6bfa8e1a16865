/// @file
/// A fresh game with a data folder of its own, as real as the player's.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "persistence/modBeste.h"
#include "tests/array_screen.h"
#include "tests/files.h"

class DataFixture : public testing::Test {
 protected:
  QTemporaryDir folder;
  ArrayScreen ansicht;

  DataFixture() {
    spiel = {};
    spiel.Datenordner = folder.path().toStdString();
    spiel.DatenordnerAktiv = true;
  }
  /// Exactly this one message since the last call, word for word.
  void ExpectMessage(const Meldung &erwartet, const QByteArray &fall = "") {
    ASSERT_EQ(ansicht.meldungen.size(), 1U) << fall.data();
    EXPECT_EQ(ansicht.meldungen[0].lblMeldung, erwartet.lblMeldung) << fall.data();
    EXPECT_EQ(ansicht.meldungen[0].lblTitel, erwartet.lblTitel) << fall.data();
    ansicht.meldungen.clear();
  }
  static void ExpectGame(int level, int punkte, int levelpunkte, int modus) {
    EXPECT_EQ(spiel.Level, level);
    EXPECT_EQ(spiel.Punkte, punkte);
    EXPECT_EQ(spiel.Levelpunkte, levelpunkte);
    EXPECT_EQ(spiel.Spielmodus, modus);
  }
};
