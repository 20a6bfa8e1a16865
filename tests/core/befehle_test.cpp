#include "tests/core/kernprobe.h"

namespace {

class Befehle : public Kernprobe {};

TEST_F(Befehle, ein_neues_spiel_fragt_nur_waehrend_eines_spiels) {
  imgNeuesSpiel_Click(ansicht);
  EXPECT_TRUE(ansicht.meldungen.empty());
  EXPECT_EQ(Punkte() + Rest() + Level(), "__50069_1");
  EXPECT_EQ(ansicht.timer[Pfeil::Start], 0);
  EXPECT_EQ(ansicht.pfeile[Pfeil::Start], kKeinPfeil);
  EXPECT_FALSE(ansicht.moduswahlSichtbar);
  EXPECT_EQ(ansicht.modusfarbe, Textfarbe::Blau);
  const auto brett = spiel.lstWiederHolen;

  ansicht.antworten = {kNein, kAbgebrochen, kJa};
  imgNeuesSpiel_Click(ansicht);
  imgNeuesSpiel_Click(ansicht);
  EXPECT_EQ(spiel.lstWiederHolen, brett);
  imgNeuesSpiel_Click(ansicht);
  EXPECT_NE(spiel.lstWiederHolen, brett);
  EXPECT_EQ(ansicht.meldungen.size(), 3U);
}

TEST_F(Befehle, ein_wiederholtes_level_behaelt_das_brett_und_kostet_hundert_punkte) {
  imgNeuesSpiel_Click(ansicht);
  const auto brett = spiel.lstWiederHolen;
  const auto zahlen = ansicht.zahlen;
  for (int punkte = 400; punkte >= -100; punkte -= 100) {
    const auto kacheln = ansicht.kacheln;
    VerliereLevel();
    NaechsterLevelBlinkt(ansicht);
    cmdWiederholen_Click(ansicht);
    EXPECT_EQ(spiel.Punkte, punkte);
    EXPECT_EQ(spiel.lstWiederHolen, brett);
    EXPECT_EQ(ansicht.zahlen, zahlen);
    EXPECT_NE(ansicht.kacheln, kacheln);
    EXPECT_EQ(Zaehle(Kachel::Sarant), 6);
    EXPECT_EQ(Zaehle(Kachel::Markiert), 2);
    EXPECT_EQ(Zaehle(Kachel::Fehler), 0);
    EXPECT_EQ(Fehler() + Levelpunkte() + Rest(), "_0___69");
    EXPECT_FALSE(ansicht.IstSichtbar(Bedienung::cmdWiederholen));
    EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 0);
    EXPECT_EQ(ansicht.pfeile[Pfeil::Weiter], kKeinPfeil);
  }
  EXPECT_EQ(spiel.WeiterBlinkphase, 0);
  EXPECT_EQ(Punkte(), "____0");
}

TEST_F(Befehle, bei_null_punkten_wird_nicht_gefragt) {
  imgNeuesSpiel_Click(ansicht);
  spiel.Punkte = 0;
  imgNeuesSpiel_Click(ansicht);
  EXPECT_TRUE(ansicht.meldungen.empty());
  EXPECT_EQ(spiel.Punkte, 500);
  imgEnde_Click(ansicht);
  EXPECT_FALSE(ansicht.beendet);
  spiel.Punkte = 0;
  imgEnde_Click(ansicht);
  EXPECT_TRUE(ansicht.beendet);
}

TEST_F(Befehle, jeder_weg_aus_dem_gewonnenen_level_fuehrt_in_ein_sauberes) {
  const std::function<void()> wege[] = {[this] { imgNextLevel_Click(ansicht); },
                                        [this] { imgNeuesSpiel_Click(ansicht); },
                                        [this] { SpielAbLevelBeginnen(ansicht, 10, 1); }};
  for (const auto &weg : wege) {
    imgNeuesSpiel_Click(ansicht);
    GewinneLevel();
    ASSERT_TRUE(ansicht.IstSichtbar(Bedienung::imgNextLevel));
    ansicht.antworten = {kJa};
    weg();
    for (const Bedienung b :
         {Bedienung::imgNextLevel, Bedienung::cmdWiederholen, Bedienung::imgSpeichern})
      EXPECT_FALSE(ansicht.IstSichtbar(b));
    EXPECT_FALSE(ansicht.speichernErlaubt);
    EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 0);
    EXPECT_EQ(spiel.Levelpunkte, 0);
    EXPECT_EQ(Zaehle(Kachel::Sarant), spiel.Startfelder);
    spiel.Punkte = 0;
  }
}

TEST_F(Befehle, die_pfeile_blinken_jeder_auf_seine_weise) {
  ZeigeStart(ansicht);
  EXPECT_EQ(ansicht.pfeile[Pfeil::Start], 1);
  ZeigeStart(ansicht);
  EXPECT_EQ(ansicht.pfeile[Pfeil::Start], 0);
  NaechsterLevelBlinkt(ansicht);
  EXPECT_EQ(ansicht.pfeile[Pfeil::Weiter], 0);
  NaechsterLevelBlinkt(ansicht);
  EXPECT_EQ(ansicht.pfeile[Pfeil::Weiter], 1);
}

TEST_F(Befehle, startpunkte_der_spaeten_level) {
  const std::array<std::array<int, 6>, kModi> punkte{{{500, 1500, 3000, 4500, 6000, 7500},
                                                      {500, 1500, 3000, 4500, 6000, 7500},
                                                      {500, 1750, 3500, 5250, 7000, 8750}}};
  for (int modus = 1; modus <= kModi; ++modus) {
    for (int stufe = 0; stufe < 6; ++stufe) {
      SpielAbLevelBeginnen(ansicht, 5 * stufe, modus);
      EXPECT_EQ(spiel.Level, 5 * stufe + 1);
      EXPECT_EQ(spiel.Punkte,
                punkte.at(static_cast<std::size_t>(modus - 1)).at(static_cast<std::size_t>(stufe)));
    }
  }
}

TEST_F(Befehle, vierzig_level_in_jedem_modus_bis_zum_ende) {
  for (std::int16_t modus = 1; modus <= kModi; ++modus) {
    spiel = {};
    spiel.Spielmodus = modus;
    spiel.Bestenschwelle = 13000;
    ansicht = {};
    imgNeuesSpiel_Click(ansicht);
    const int bonus = 350 + 50 * modus;
    for (int level = 1; level <= kLetztesLevel; ++level) {
      EXPECT_EQ(spiel.Level, level);
      GewinneLevel();
      EXPECT_EQ(spiel.Punkte, 500 + bonus * (level - 1));
      imgNextLevel_Click(ansicht);
      if (level < kLetztesLevel) {
        EXPECT_EQ(ansicht.IstSichtbar(Bedienung::imgBester), 500 + bonus * level > 13000);
      }
    }
    ASSERT_EQ(ansicht.meldungen.size(), 2U);
    EXPECT_EQ(ansicht.meldungen[0].lblMeldung,
              "Das Spiel ist beendet!\r\nSie haben alle Level erfolgreich gespielt.");
    EXPECT_EQ(ansicht.meldungen[1].lage, Lage::RechtsUnten);
    EXPECT_EQ(ansicht.bestenpruefungen, 1);
    EXPECT_EQ(spiel.Punkte, 0);
    EXPECT_TRUE(ansicht.beendet);
    EXPECT_EQ(Zaehle(Kachel::Verdeckt), kZellen);
  }
}

}  // namespace
