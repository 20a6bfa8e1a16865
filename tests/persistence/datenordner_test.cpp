#include <QDir>

#include "persistence/modCdVersion.h"
#include "platform/modOpenSave.h"
#include "platform/pfade.h"
#include "tests/persistence/umgebung.h"

using Datenordner = Umgebung;

TEST_F(Datenordner, WirdEinmalAngelegt) {
  const QString erwartet = temporaer.filePath("nachtkammern");
  qputenv("XDG_DATA_HOME", temporaer.path().toUtf8());
  for (int start = 0; start < 2; ++start) {
    LegeDatenordnerFest(ansicht);
    EXPECT_TRUE(QDir(erwartet).exists());
    EXPECT_EQ(Dialogordner, erwartet);
    EXPECT_EQ(Datenpfad("x"), erwartet + "/x");
  }
  QDir().rmdir(erwartet);
  Lege(erwartet, "A file of that name stays.");
  LegeDatenordnerFest(ansicht);
  EXPECT_EQ(Inhalt(erwartet), "A file of that name stays.");
  EXPECT_TRUE(ansicht.meldungen.empty());
}

TEST_F(Datenordner, FehltDemSystem) {
  spiel = {};
  Dialogordner.clear();
  qputenv("XDG_DATA_HOME", "");
  qputenv("HOME", "");
  LegeDatenordnerFest(ansicht);
  ErwarteMeldung(MeldungKeineFestplatte());
  EXPECT_FALSE(spiel.DatenordnerAktiv);
  EXPECT_EQ(Dialogordner, "");
  EXPECT_EQ(Datenpfad("x"), MitBackslash(Programmordner()) + "x");
}
