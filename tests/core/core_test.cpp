#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>
#include <sstream>

#include "core/anzeige.h"
#include "core/befehle.h"
#include "core/level.h"
#include "core/zahlen.h"
#include "core/zufall.h"
#include "core/zug.h"
#include "tests/feldansicht.h"

namespace {

Zelle &Feld(int zelle) {
  return spiel.Feld.at(static_cast<std::size_t>(zelle));
}

/// A fresh record, a screen of arrays and a clock that counts.
class Kern : public testing::Test {
 protected:
  Kern() {
    Beginne();
    StelleUhr();
  }
  ~Kern() override { zufall = {}; }

  void Beginne() {
    spiel = {};
    ansicht = {};
    WarteAufSpiel(ansicht);
  }
  static void StelleUhr() {
    zufall.Uhr = [saat = std::uint64_t{0}]() mutable { return ++saat; };
  }
  /// Lays a board on the playfield and begins to play on it without any help.
  void LegeBrett(const std::vector<int> &saranten) {
    for (const int zelle : saranten)
      Feld(zelle).IstSarant = true;
    spiel.Level = 1;
    spiel.Punkte = kStartpunkte;
    ZeigeStatus(ansicht);
  }
  void Klick(int zelle, int taste = kLinkeTaste) { imgSar_MouseDown(ansicht, zelle, taste); }
  /// Presses covered cells with or without a gem until the level has ended that way.
  void SpieleLevel(bool saranten, Bedienung ende) {
    for (int zelle = 1; zelle <= kZellen && !ansicht.IstSichtbar(ende); ++zelle) {
      if (Feld(zelle).IstSarant == saranten && ansicht.LiesKachel(zelle) == Kachel::Verdeckt)
        Klick(zelle);
    }
    ASSERT_TRUE(ansicht.IstSichtbar(ende));
  }
  void GewinneLevel() { SpieleLevel(true, Bedienung::imgNextLevel); }
  void VerliereLevel() { SpieleLevel(false, Bedienung::cmdWiederholen); }

  int Zaehle(Kachel kachel) const {
    return static_cast<int>(std::count(ansicht.kacheln.begin() + 1, ansicht.kacheln.end(), kachel));
  }
  void ErwarteSaubereSpielphase() {
    for (const Bedienung b :
         {Bedienung::imgNextLevel, Bedienung::cmdWiederholen, Bedienung::imgSpeichern})
      EXPECT_FALSE(ansicht.IstSichtbar(b));
    EXPECT_FALSE(ansicht.speichernErlaubt);
    EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 0);
    EXPECT_EQ(ansicht.pfeile[Pfeil::Weiter], kKeinPfeil);
    EXPECT_EQ(spiel.Levelpunkte, 0);
    EXPECT_EQ(Zaehle(Kachel::Fehler), 0);
    EXPECT_EQ(Zaehle(Kachel::Sarant), spiel.Startfelder);
    EXPECT_EQ(Zaehle(Kachel::Markiert), FreifelderFuer(spiel.Level));
  }
  std::string Punkte() { return ansicht.Reihe(Ziffernreihe::imgPunkte, 0, 4); }
  std::string Levelpunkte() { return ansicht.Reihe(Ziffernreihe::imgLevel, 0, 2); }
  /// Errors, rest and level, two places each.
  std::string Auswertung() { return ansicht.Reihe(Ziffernreihe::imgAuswertung, 0, 5); }

  FeldAnsicht ansicht;
};

TEST_F(Kern, schreibt_punkte_rechtsbuendig_und_laesst_die_einer_sonst_stehen) {
  std::istringstream tafel(
      "7 ____7 42 ___42 500 __500 1750 _1750 20500 20500 99999 99999 -1 ____9 10 ___10 "
      "-100 ____0 100003 ____0 8 ____8 -2147483648 ____8 2147483647 ____8 0 ____0");
  for (std::string gezeigt; tafel >> spiel.Punkte >> gezeigt;) {
    ZeigeStatus(ansicht);
    EXPECT_EQ(Punkte(), gezeigt) << spiel.Punkte;
  }
  spiel.Level = 9;
  spiel.Fehler = 12;
  ZeigeLevelpunkte(ansicht, 450, Ziffernfarbe::Gruen);
  ZeigeStatus(ansicht);
  EXPECT_EQ(Auswertung() + Levelpunkte(), "12_0_9___");
  spiel.Level = 10;
  ZeigeStatus(ansicht);
  EXPECT_EQ(Auswertung(), "12_010");
}

TEST_F(Kern, ein_zug_folgt_der_tafel_der_uebergaenge) {
  // Tile before, gem or none, button, tile after, sound, and whether the text is written anew.
  std::istringstream tafel(
      "V s 1 S 4 neu  V - 1 F 3 neu  V s 2 M 0 neu  V - 4 M 0 neu  M s 1 M 0 alt  M - 1 M 0 alt "
      "M s 2 V 0 neu  S s 1 S 4 neu  S s 2 S 0 neu  F - 1 F 3 neu  F - 2 F 0 neu");
  const std::string kuerzel = "VMFS";
  LegeBrett({1, 2, 3, 50});
  char vorher = 0, sarant = 0, nachher = 0;
  int taste = 0, klang = 0;
  for (std::string text; tafel >> vorher >> sarant >> taste >> nachher >> klang >> text;) {
    SCOPED_TRACE(testing::Message() << vorher << sarant << taste);
    const int zelle = sarant == 's' ? 1 : 7;
    ansicht.SetzeKachel(zelle, static_cast<Kachel>(kuerzel.find(vorher)));
    ansicht.modustext = "alt";
    ansicht.klaenge.clear();
    Klick(zelle, taste);
    EXPECT_EQ(ansicht.LiesKachel(zelle), static_cast<Kachel>(kuerzel.find(nachher)));
    EXPECT_EQ(ansicht.klaenge, std::vector<int>(klang != 0, klang));
    EXPECT_EQ(ansicht.modustext, text == "neu" ? Moduszeile(3) : text);
    ansicht.SetzeKachel(zelle, Kachel::Verdeckt);
  }
  EXPECT_EQ(spiel.Punkte, kStartpunkte);
}

TEST_F(Kern, der_zweite_fehler_verliert_das_level) {
  LegeBrett({1, 2, 3});
  for (const int zelle : {1, 50, 50})
    Klick(zelle);
  EXPECT_EQ(Auswertung(), "_1_2_1");
  EXPECT_FALSE(ansicht.IstSichtbar(Bedienung::cmdWiederholen));
  ansicht.klaenge.clear();
  Klick(51);
  EXPECT_TRUE(ansicht.IstSichtbar(Bedienung::cmdWiederholen));
  EXPECT_EQ(ansicht.klaenge, (std::vector{kKlangFehler, kKlangFehler}));
  EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 400);
  EXPECT_EQ(ansicht.modustext, "Klicken Sie auf »Wiederholen«");
  EXPECT_EQ(Auswertung() + Levelpunkte(), "_2_2_1100");
  EXPECT_EQ(ansicht.ziffern.at({Ziffernreihe::imgLevel, 2}).first, Ziffernfarbe::Rot);
  EXPECT_EQ(ansicht.ziffern.at({Ziffernreihe::imgAuswertung, 4}).first, Ziffernfarbe::Rot);
  EXPECT_EQ(spiel.Punkte, 500);
  Klick(2);
  Klick(60, kRechteTaste);
  EXPECT_EQ(Zaehle(Kachel::Verdeckt), kZellen - 3);
}

TEST_F(Kern, die_letzte_sarante_gewinnt_auch_neben_einem_fehler) {
  std::istringstream tafel(
      "1 500 400 __500 2 12345 450 12345 3 0 500 _____ 2 -300 450 _____ 2 123456 450 _____");
  std::int16_t modus = 0;
  std::int32_t punkte = 0;
  for (std::string levelpunkte, panel; tafel >> modus >> punkte >> levelpunkte >> panel;) {
    Beginne();
    LegeBrett({10, 11});
    spiel.Spielmodus = modus;
    spiel.Punkte = punkte;
    for (const int zelle : {99, 10, 11})
      Klick(zelle);
    for (const Bedienung b : {Bedienung::imgNextLevel, Bedienung::imgSpeichern})
      EXPECT_TRUE(ansicht.IstSichtbar(b));
    EXPECT_TRUE(ansicht.speichernErlaubt);
    EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 300);
    EXPECT_EQ(ansicht.klaenge.back(), kKlangTada);
    EXPECT_EQ(ansicht.modustext, "Klicken Sie auf »Nächster Level«");
    EXPECT_EQ(Levelpunkte(), levelpunkte);
    EXPECT_EQ(Punkte(), panel);
    EXPECT_EQ(spiel.Punkte, punkte);
    Klick(98);
    EXPECT_EQ(ansicht.LiesKachel(98), Kachel::Verdeckt);
  }
}

TEST_F(Kern, die_summe_bleibt_im_bereich) {
  using Grenzen = std::numeric_limits<std::int32_t>;
  spiel.Punkte = Grenzen::max() - 1;
  spiel.Levelpunkte = 450;
  EXPECT_EQ(SummePunkte(), Grenzen::max());
  spiel.Punkte = Grenzen::min() + 1;
  spiel.Levelpunkte = -100;
  EXPECT_EQ(SummePunkte(), Grenzen::min());
}

/// Up to this level: start cells in the three modes and free-cell marks.
constexpr int kHilfen[][5] = {
    {3, 8, 6, 0, 2},    {5, 8, 6, 0, 4},      {6, 8, 6, 1, 4},    {7, 8, 6, 2, 4},
    {8, 8, 6, 3, 4},    {9, 8, 6, 4, 6},      {10, 8, 6, 5, 6},   {11, 8, 6, 6, 6},
    {12, 8, 6, 7, 6},   {13, 8, 6, 8, 6},     {14, 8, 6, 9, 8},   {15, 8, 6, 10, 8},
    {16, 8, 6, 11, 8},  {17, 8, 6, 12, 8},    {18, 8, 6, 13, 8},  {19, 8, 6, 14, 10},
    {20, 8, 6, 15, 10}, {24, 14, 12, 12, 10}, {29, 11, 9, 9, 10}, {30, 9, 7, 7, 10},
    {34, 9, 7, 7, 12},  {40, 7, 5, 5, 12},
};

TEST_F(Kern, gibt_jedem_level_und_modus_seine_saranten_startfelder_und_freifelder) {
  for (int level = 1; level <= kLetztesLevel; ++level) {
    const int *hilfe = *std::find_if(std::begin(kHilfen), std::end(kHilfen),
                                     [level](const int *h) { return level <= h[0]; });
    for (int modus = 1; modus <= kModi; ++modus) {
      SCOPED_TRACE(testing::Message() << "level " << level << " mode " << modus);
      ansicht.klaenge.clear();
      SpielAbLevelBeginnen(ansicht, level - 1, modus);
      const int start = hilfe[modus];
      EXPECT_EQ(Zaehle(Kachel::Sarant), start);
      EXPECT_EQ(Zaehle(Kachel::Markiert), hilfe[4]);
      EXPECT_EQ(spiel.SarantenRest, 76 - level - start);
      EXPECT_EQ(ansicht.klaenge, std::vector<int>(static_cast<std::size_t>(start), kKlangBlip));
      std::set<std::string> saranten;
      for (int zelle = 1; zelle <= kZellen; ++zelle) {
        if (Feld(zelle).IstSarant)
          saranten.insert(std::to_string(zelle));
        EXPECT_NE(ansicht.LiesKachel(zelle),
                  Feld(zelle).IstSarant ? Kachel::Markiert : Kachel::Sarant);
      }
      EXPECT_EQ(saranten, std::set(spiel.lstWiederHolen.begin(), spiel.lstWiederHolen.end()));
      EXPECT_EQ(spiel.lstWiederHolen.size(), static_cast<std::size_t>(76 - level));
      EXPECT_EQ(spiel.SarantenListe[1], std::stoi(spiel.lstWiederHolen.front()));
    }
  }
}

TEST_F(Kern, gefragt_wird_nur_bei_punkten_und_nur_ja_beginnt_neu) {
  imgNeuesSpiel_Click(ansicht);
  EXPECT_TRUE(ansicht.meldungen.empty());
  EXPECT_EQ(Punkte() + Auswertung(), "__500_069_1");
  EXPECT_EQ(ansicht.timer[Pfeil::Start], 0);
  EXPECT_EQ(ansicht.pfeile[Pfeil::Start], kKeinPfeil);
  EXPECT_FALSE(ansicht.moduswahlSichtbar);
  EXPECT_EQ(ansicht.modusfarbe, Textfarbe::Blau);
  const auto brett = spiel.lstWiederHolen;
  ansicht.antworten = {kNein, kAbgebrochen, kJa};
  for (const bool neu : {false, false, true}) {
    imgNeuesSpiel_Click(ansicht);
    EXPECT_EQ(spiel.lstWiederHolen != brett, neu);
  }
  imgEnde_Click(ansicht);
  EXPECT_FALSE(ansicht.beendet);
  EXPECT_EQ(ansicht.meldungen.size(), 4U);
  spiel.Punkte = 0;
  imgNeuesSpiel_Click(ansicht);
  EXPECT_EQ(spiel.Punkte, 500);
  spiel.Punkte = 0;
  imgEnde_Click(ansicht);
  EXPECT_TRUE(ansicht.beendet);
  EXPECT_EQ(ansicht.meldungen.size(), 4U);
}

TEST_F(Kern, ein_wiederholtes_level_behaelt_das_brett_und_kostet_hundert_punkte) {
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
    EXPECT_EQ(Auswertung() + Levelpunkte(), "_069_1___");
    ErwarteSaubereSpielphase();
  }
  EXPECT_EQ(spiel.WeiterBlinkphase, 0);
  EXPECT_EQ(Punkte(), "____0");
}

TEST_F(Kern, jeder_weg_aus_dem_gewonnenen_level_fuehrt_in_ein_sauberes) {
  const std::function<void()> wege[] = {[this] { imgNextLevel_Click(ansicht); },
                                        [this] { imgNeuesSpiel_Click(ansicht); },
                                        [this] { SpielAbLevelBeginnen(ansicht, 10, 1); }};
  for (const auto &weg : wege) {
    imgNeuesSpiel_Click(ansicht);
    GewinneLevel();
    ansicht.antworten = {kJa};
    weg();
    ErwarteSaubereSpielphase();
    spiel.Punkte = 0;
  }
}

TEST_F(Kern, die_pfeile_blinken_jeder_auf_seine_weise) {
  for (const int phase : {0, 1, 0}) {
    ZeigeStart(ansicht);
    EXPECT_EQ(ansicht.pfeile[Pfeil::Start], 1 - phase);
    NaechsterLevelBlinkt(ansicht);
    EXPECT_EQ(ansicht.pfeile[Pfeil::Weiter], phase);
  }
}

TEST_F(Kern, vierzig_level_in_jedem_modus_bis_zum_ende) {
  for (std::int16_t modus = 1; modus <= kModi; ++modus) {
    Beginne();
    spiel.Spielmodus = modus;
    spiel.Bestenschwelle = 13000;
    imgNeuesSpiel_Click(ansicht);
    const int bonus = 350 + 50 * modus;
    for (int level = 1; level <= kLetztesLevel; ++level) {
      EXPECT_EQ(spiel.Level, level);
      GewinneLevel();
      EXPECT_EQ(spiel.Punkte, 500 + bonus * (level - 1));
      imgNextLevel_Click(ansicht);
      EXPECT_EQ(ansicht.IstSichtbar(Bedienung::imgBester),
                level < kLetztesLevel && 500 + bonus * level > 13000);
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

TEST_F(Kern, zahlen_stehen_in_der_reihenfolge_des_gangs_vom_ende_her) {
  // Column 3 holds, from the top, runs of 2, 1 and 4, column 5 ends in 1, column 10 is full; row 1
  // holds five gems alone, row 10 runs of 3, 1 and 1.
  LegeBrett(
      {1, 3, 5, 7, 13, 33, 63, 73, 83, 93, 91, 92, 95, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100});
  BerechneZahlen(ansicht);
  const std::pair<int, std::vector<int>> linien[] = {{11, {4, 1, 2, 0, 0}},
                                                     {21, {1, 1, 0, 0, 0}},
                                                     {46, {10, 0, 0, 0, 0}},
                                                     {51, {1, 1, 1, 1, 1}},
                                                     {96, {1, 1, 3, 0, 0}}};
  for (const auto &[platz, zahlen] : linien) {
    const auto linie = ansicht.zahlen.begin() + platz;
    EXPECT_EQ(std::vector(linie, linie + kPlaetzeJeLinie), zahlen) << platz;
    for (std::size_t k = 0; k < zahlen.size(); ++k)
      EXPECT_EQ(ansicht.zahlSichtbar.at(static_cast<std::size_t>(platz) + k), zahlen[k] != 0);
  }
  EXPECT_EQ(spiel.SarantenRest, 23);
}

/// How often each cell came up, and how many cells come up in one board.
struct Haeufigkeit {
  double jeBrett;
  std::array<int, kZellen + 1> zelle{};

  /// Pearson's statistic for draws without replacement, chi-square with 99 degrees of freedom.
  double ChiQuadrat(int bretter) const {
    const double anteil = jeBrett / kZellen;
    double summe = 0;
    for (std::size_t n = 1; n <= kZellen; ++n) {
      const double abstand = zelle.at(n) - bretter * anteil;
      summe += abstand * abstand;
    }
    return summe / (bretter * anteil * (1 - anteil)) * (kZellen - 1) / kZellen;
  }
};

TEST_F(Kern, jede_zelle_hat_die_gleiche_chance) {
  constexpr int kBretter = 20000;
  constexpr double kGrenze = 148.23;  // Exceeded with a probability of 0.001.
  using Uhr = std::uint64_t (*)(std::uint64_t);
  // Three clocks: one that ticks at each draw, one that skips, one that stands for eight draws.
  for (const Uhr uhr : {Uhr([](auto n) { return n; }), Uhr([](auto n) { return n * 1'000'003; }),
                        Uhr([](auto n) { return n / 8; })}) {
    zufall.Uhr = [uhr, n = std::uint64_t{0}]() mutable { return uhr(++n); };
    Haeufigkeit saranten{36}, startfelder{5}, marken{12};
    for (int brett = 0; brett < kBretter; ++brett) {
      spiel.Level = kLetztesLevel - 1;
      LevelBeginnen(ansicht);
      for (std::size_t n = 1; n <= kZellen; ++n) {
        saranten.zelle.at(n) += spiel.Feld.at(n).IstSarant ? 1 : 0;
        startfelder.zelle.at(n) += ansicht.kacheln.at(n) == Kachel::Sarant ? 1 : 0;
        marken.zelle.at(n) += ansicht.kacheln.at(n) == Kachel::Markiert ? 1 : 0;
      }
    }
    for (const Haeufigkeit &h : {saranten, startfelder, marken})
      EXPECT_LT(h.ChiQuadrat(kBretter), kGrenze) << h.jeBrett;
  }
}

TEST_F(Kern, gleiche_uhr_gleiches_brett_und_die_echte_uhr_steht_nie) {
  SpielBeginnen(ansicht);
  const auto brett = spiel.lstWiederHolen;
  StelleUhr();
  SpielBeginnen(ansicht);
  EXPECT_EQ(spiel.lstWiederHolen, brett);
  zufall = {};
  SpielBeginnen(ansicht);
  const auto erstes = spiel.lstWiederHolen;
  SpielBeginnen(ansicht);
  EXPECT_NE(spiel.lstWiederHolen, erstes);
}

}  // namespace
