/// @file
/// A fresh game with a data folder of its own, as real as the player's.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "persistence/modBeste.h"
#include "tests/feldansicht.h"
#include "tests/platform/dateien.h"

class Umgebung : public testing::Test {
 protected:
  QTemporaryDir temporaer;
  FeldAnsicht ansicht;

  Umgebung() {
    spiel = {};
    spiel.Datenordner = temporaer.path().toStdString();
    spiel.DatenordnerAktiv = true;
  }
  /// Exactly this one message since the last call, word for word.
  void ErwarteMeldung(const Meldung &erwartet, const QByteArray &fall = "") {
    ASSERT_EQ(ansicht.meldungen.size(), 1U) << fall.data();
    EXPECT_EQ(ansicht.meldungen[0].lblMeldung, erwartet.lblMeldung) << fall.data();
    EXPECT_EQ(ansicht.meldungen[0].lblTitel, erwartet.lblTitel) << fall.data();
    ansicht.meldungen.clear();
  }
  static void ErwarteSpiel(int level, int punkte, int levelpunkte, int modus) {
    EXPECT_EQ(spiel.Level, level);
    EXPECT_EQ(spiel.Punkte, punkte);
    EXPECT_EQ(spiel.Levelpunkte, levelpunkte);
    EXPECT_EQ(spiel.Spielmodus, modus);
  }
};
