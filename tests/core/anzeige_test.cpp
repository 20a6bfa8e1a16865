#include "tests/core/kernprobe.h"

namespace {

class Anzeige : public Kernprobe {};

TEST_F(Anzeige, zeigt_vor_dem_ersten_spiel_lauter_nullen) {
  EXPECT_EQ(Punkte() + Levelpunkte() + Fehler() + Rest() + Level(), "____0____0_0_0");
  EXPECT_EQ(ansicht.ziffern.at({Ziffernreihe::imgAuswertung, 5}),
            FeldAnsicht::Ziffer(Ziffernfarbe::Rot, kLeereZiffer));
  EXPECT_EQ(ansicht.timer[Pfeil::Start], 300);
  EXPECT_EQ(ansicht.modustext, "Wählen Sie einen Spielmodus ! Klicken Sie auf neues Spiel.\"");
}

TEST_F(Anzeige, schreibt_punkte_rechtsbuendig_und_laesst_die_einer_sonst_stehen) {
  const std::pair<std::int32_t, const char *> faelle[] = {{7, "____7"},
                                                          {42, "___42"},
                                                          {500, "__500"},
                                                          {1750, "_1750"},
                                                          {20500, "20500"},
                                                          {99999, "99999"},
                                                          {-1, "____9"},
                                                          {10, "___10"},
                                                          {-100, "____0"},
                                                          {100003, "____0"},
                                                          {-2147483647 - 1, "____0"},
                                                          {2147483647, "____0"},
                                                          {0, "____0"}};
  for (const auto &[punkte, gezeigt] : faelle) {
    spiel.Punkte = punkte;
    ZeigeStatus(ansicht);
    EXPECT_EQ(Punkte(), gezeigt) << punkte;
  }
}

TEST_F(Anzeige, zeigt_zweistellige_reihen_und_leert_die_levelpunkte) {
  spiel.Level = 9;
  spiel.Fehler = 12;
  ZeigeLevelpunkte(ansicht, 450, Ziffernfarbe::Gruen);
  ZeigeStatus(ansicht);
  EXPECT_EQ(Level() + Fehler() + Levelpunkte(), "_912___");
  spiel.Level = 10;
  ZeigeStatus(ansicht);
  EXPECT_EQ(Level(), "10");
}

}  // namespace
