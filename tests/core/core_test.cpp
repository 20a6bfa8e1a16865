#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>

#include "core/anzeige.h"
#include "core/befehle.h"
#include "core/level.h"
#include "core/zahlen.h"
#include "core/zufall.h"
#include "core/zug.h"
#include "tests/array_screen.h"

namespace {

constexpr auto kKleinste = std::numeric_limits<std::int32_t>::min();
constexpr auto kGroesste = std::numeric_limits<std::int32_t>::max();

Zelle &Feld(int zelle) {
  return spiel.Feld.at(static_cast<std::size_t>(zelle));
}

/// A fresh record, a screen of arrays and a clock that counts.
class Kern : public testing::Test {
 protected:
  Kern() { Beginne(); }
  ~Kern() override { zufall = {}; }

  void Beginne() {
    spiel = {};
    ansicht = {};
    zufall.Uhr = [saat = std::uint64_t{0}]() mutable { return ++saat; };
    WarteAufSpiel(ansicht);
  }
  /// Lays a board on the playfield and begins to play on it without any help.
  void LegeBrett(const std::vector<int> &saranten) {
    for (const int zelle : saranten)
      Feld(zelle).IstSarant = true;
    spiel.Level = 1;
    spiel.Punkte = kStartpunkte;
    ZeigeStatus(ansicht);
  }
  void Click(int zelle, int taste = kLinkeTaste) { imgSar_MouseDown(ansicht, zelle, taste); }
  /// Presses covered cells with or without a gem until the level has ended that way.
  void SpieleLevel(bool saranten, Bedienung ende) {
    for (int zelle = 1; zelle <= kZellen; ++zelle)
      if (Feld(zelle).IstSarant == saranten && ansicht.LiesKachel(zelle) == Kachel::Verdeckt)
        Click(zelle);
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
  std::string Punkte() { return ansicht.Reihe(Panelreihe::imgPunkte, 0, 4); }
  std::string Levelpunkte() { return ansicht.Reihe(Panelreihe::imgLevel, 0, 2); }
  /// Errors, rest and level, two places each.
  std::string Auswertung() { return ansicht.Reihe(Panelreihe::imgAuswertung, 0, 5); }

  ArrayScreen ansicht;
};

TEST_F(Kern, SchreibtPunkteRechtsbuendigUndLaesstDieEinerSonstStehen) {
  EXPECT_EQ(Punkte() + Auswertung(), "____0[_][0]_0_0");
  const std::pair<std::int32_t, const char *> faelle[] = {
      {7, "____7"},         {42, "___42"},     {500, "__500"}, {1750, "_1750"},
      {20500, "20500"},     {99999, "99999"},  {-1, "____9"},  {10, "___10"},
      {-100, "____0"},      {100000, "____0"}, {8, "____8"},   {kKleinste, "____8"},
      {kGroesste, "____8"}, {0, "____0"}};
  for (const auto &[punkte, gezeigt] : faelle) {
    spiel.Punkte = punkte;
    ZeigeStatus(ansicht);
    EXPECT_EQ(Punkte(), gezeigt) << punkte;
  }
  spiel.Level = 9;
  spiel.Fehler = 12;
  ZeigeLevelpunkte(ansicht, 450, Ziffernfarbe::Gruen);
  ZeigeStatus(ansicht);
  EXPECT_EQ(Auswertung() + Levelpunkte(), "[1][2]_0_9___");
  spiel.Level = 10;
  ZeigeStatus(ansicht);
  EXPECT_EQ(Auswertung(), "[1][2]_010");
}

TEST_F(Kern, EinZugFolgtDerTafelDerUebergaenge) {
  using enum Kachel;
  constexpr int kSarante = 1, kFrei = 7;
  const struct {
    Kachel vorher;
    int zelle, taste;
    Kachel nachher;
    int klang;
    bool neuerText;
  } faelle[] = {{Verdeckt, kSarante, 1, Sarant, kKlangBlip, true},
                {Verdeckt, kFrei, 1, Fehler, kKlangFehler, true},
                {Verdeckt, kSarante, 2, Markiert, 0, true},
                {Verdeckt, kFrei, 4, Markiert, 0, true},
                {Markiert, kSarante, 1, Markiert, 0, false},
                {Markiert, kFrei, 1, Markiert, 0, false},
                {Markiert, kSarante, 2, Verdeckt, 0, true},
                {Sarant, kSarante, 1, Sarant, kKlangBlip, true},
                {Sarant, kSarante, 2, Sarant, 0, true},
                {Fehler, kFrei, 1, Fehler, kKlangFehler, true},
                {Fehler, kFrei, 2, Fehler, 0, true}};
  LegeBrett({kSarante, 2, 3, 50});
  for (const auto &fall : faelle) {
    SCOPED_TRACE(&fall - faelle);
    ansicht.SetzeKachel(fall.zelle, fall.vorher);
    ansicht.modustext = "alt";
    ansicht.klaenge.clear();
    Click(fall.zelle, fall.taste);
    EXPECT_EQ(ansicht.LiesKachel(fall.zelle), fall.nachher);
    EXPECT_EQ(ansicht.klaenge, std::vector<int>(fall.klang != kKeinKlang, fall.klang));
    EXPECT_EQ(ansicht.modustext, fall.neuerText ? Moduszeile(3) : "alt");
    ansicht.SetzeKachel(fall.zelle, Verdeckt);
  }
  EXPECT_EQ(spiel.Punkte, kStartpunkte);
}

TEST_F(Kern, DerZweiteFehlerVerliertDasLevel) {
  LegeBrett({2, 3, 4});
  for (const int zelle : {2, 1, 1})
    Click(zelle);
  EXPECT_EQ(Auswertung(), "[_][1]_2_1");
  EXPECT_FALSE(ansicht.IstSichtbar(Bedienung::cmdWiederholen));
  ansicht.klaenge.clear();
  Click(kZellen);
  EXPECT_TRUE(ansicht.IstSichtbar(Bedienung::cmdWiederholen));
  EXPECT_EQ(ansicht.klaenge, (std::vector{kKlangFehler, kKlangFehler}));
  EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 400);
  EXPECT_EQ(ansicht.modustext, "Klicken Sie auf »Wiederholen«");
  EXPECT_EQ(Auswertung() + Levelpunkte(), "[_][2]_2_1[1][0][0]");
  EXPECT_EQ(spiel.Punkte, 500);
  Click(3);
  Click(60, kRechteTaste);
  EXPECT_EQ(Zaehle(Kachel::Verdeckt), kZellen - 3);
}

TEST_F(Kern, DieLetzteSaranteGewinntAuchNebenEinemFehler) {
  const struct {
    std::int16_t modus;
    std::int32_t punkte;
    const char *levelpunkte, *gezeigt;
  } faelle[] = {
      {1, 500, "400", "__500"},  {2, 99999, "450", "99999"},  {3, 0, "500", "_____"},
      {2, -300, "450", "_____"}, {2, 100000, "450", "_____"},
  };
  for (const auto &[modus, punkte, levelpunkte, gezeigt] : faelle) {
    Beginne();
    LegeBrett({10, 11});
    spiel.Spielmodus = modus;
    spiel.Punkte = punkte;
    for (const int zelle : {99, 10, 11})
      Click(zelle);
    for (const Bedienung b : {Bedienung::imgNextLevel, Bedienung::imgSpeichern})
      EXPECT_TRUE(ansicht.IstSichtbar(b));
    EXPECT_TRUE(ansicht.speichernErlaubt);
    EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 300);
    EXPECT_EQ(ansicht.klaenge.back(), kKlangTada);
    EXPECT_EQ(ansicht.modustext, "Klicken Sie auf »Nächster Level«");
    EXPECT_EQ(Levelpunkte(), levelpunkte);
    EXPECT_EQ(Punkte(), gezeigt);
    EXPECT_EQ(spiel.Punkte, punkte);
    Click(98);
    EXPECT_EQ(ansicht.LiesKachel(98), Kachel::Verdeckt);
  }
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

TEST_F(Kern, GibtJedemLevelUndModusSeineSarantenStartfelderUndFreifelder) {
  for (int level = 1; level <= kLetztesLevel; ++level) {
    const int *hilfe = *std::find_if(std::begin(kHilfen), std::end(kHilfen),
                                     [level](const int *h) { return level <= h[0]; });
    for (int modus = 1; modus <= kModi; ++modus) {
      SCOPED_TRACE(testing::Message() << "level " << level << " mode " << modus);
      ansicht.klaenge.clear();
      SpielAbLevelBeginnen(ansicht, level - 1, modus);
      const int start = hilfe[modus];
      EXPECT_EQ(spiel.Startfelder, start);
      EXPECT_EQ(FreifelderFuer(level), hilfe[4]);
      ErwarteSaubereSpielphase();
      EXPECT_EQ(spiel.SarantenRest, 76 - level - start);
      EXPECT_EQ(ansicht.klaenge, std::vector<int>(static_cast<std::size_t>(start), kKlangBlip));
      EXPECT_EQ(std::accumulate(ansicht.zahlen.begin(), ansicht.zahlen.end(), 0), 2 * (76 - level));
      const auto &liste = spiel.lstWiederHolen;
      EXPECT_EQ(liste.size(), static_cast<std::size_t>(76 - level));
      for (int zelle = 1; zelle <= kZellen; ++zelle) {
        const bool gelistet = std::count(liste.begin(), liste.end(), std::to_string(zelle)) == 1;
        EXPECT_EQ(Feld(zelle).IstSarant, gelistet);
        EXPECT_NE(ansicht.LiesKachel(zelle), gelistet ? Kachel::Markiert : Kachel::Sarant);
      }
      GewinneLevel();
    }
  }
}

TEST_F(Kern, GefragtWirdNurBeiPunktenUndNurJaBeginntNeu) {
  imgNeuesSpiel_Click(ansicht);
  EXPECT_TRUE(ansicht.meldungen.empty());
  EXPECT_EQ(Punkte() + Auswertung(), "__500[_][0]69_1");
  EXPECT_EQ(ansicht.timer[Pfeil::Start], 0);
  EXPECT_EQ(ansicht.pfeile[Pfeil::Start], kKeinPfeil);
  EXPECT_FALSE(ansicht.moduswahlSichtbar);
  EXPECT_EQ(ansicht.modusfarbe, Textfarbe::Blau);
  const auto brett = spiel.lstWiederHolen;
  ansicht.antworten = {kNein, kJa};
  for (const bool neu : {false, true}) {
    imgNeuesSpiel_Click(ansicht);
    EXPECT_EQ(spiel.lstWiederHolen != brett, neu);
  }
  for (const bool laeuft : {true, false}) {
    spiel.Punkte = laeuft ? 500 : 0;
    imgEnde_Click(ansicht);
    EXPECT_NE(ansicht.beendet, laeuft);
  }
  EXPECT_EQ(ansicht.meldungen.size(), 3U);
}

TEST_F(Kern, EinWiederholtesLevelBehaeltDasBrettUndKostetHundertPunkte) {
  imgNeuesSpiel_Click(ansicht);
  const auto brett = spiel.lstWiederHolen;
  const auto zahlen = ansicht.zahlen;
  for (int punkte = 400; punkte >= -100; punkte -= 100) {
    VerliereLevel();
    NaechsterLevelBlinkt(ansicht);
    ansicht.kacheln.fill(Kachel::Fehler);
    cmdWiederholen_Click(ansicht);
    EXPECT_EQ(spiel.Punkte, punkte);
    EXPECT_EQ(spiel.lstWiederHolen, brett);
    EXPECT_EQ(ansicht.zahlen, zahlen);
    EXPECT_EQ(Auswertung() + Levelpunkte(), "[_][0]69_1___");
    ErwarteSaubereSpielphase();
  }
  EXPECT_EQ(Punkte(), "____0");
}

TEST_F(Kern, HinterDemLetztenLevelEndetDasSpiel) {
  SpielAbLevelBeginnen(ansicht, kLetztesLevel - 3, 2);
  const int punkte = spiel.Punkte;
  spiel.Bestenschwelle = punkte + 450;
  for (int level = kLetztesLevel - 2; level <= kLetztesLevel; ++level) {
    EXPECT_EQ(spiel.Level, level);
    GewinneLevel();
    imgNextLevel_Click(ansicht);
    EXPECT_EQ(ansicht.IstSichtbar(Bedienung::imgBester), level == kLetztesLevel - 1);
    if (level < kLetztesLevel)
      ErwarteSaubereSpielphase();
  }
  ASSERT_EQ(ansicht.meldungen.size(), 2U);
  EXPECT_EQ(ansicht.meldungen[1].lblMeldung, MeldungVielenDank().lblMeldung);
  EXPECT_EQ(ansicht.bestenpruefungen, 1);
  EXPECT_EQ(spiel.Punkte, 0);
  EXPECT_TRUE(ansicht.beendet);
  EXPECT_EQ(Zaehle(Kachel::Verdeckt), kZellen);
}

TEST_F(Kern, ZahlenStehenInDerReihenfolgeDesGangsVomEndeHer) {
  // Column 3 holds, from the top, runs of 2, 1 and 4, column 10 is full; the rows 1 and 10 hold
  // five gems alone, row 9 runs of 3, 1 and 1.
  LegeBrett({1,  3,  5,  7,  13, 33, 63, 73, 10, 20, 30, 40, 50,
             60, 70, 80, 90, 81, 82, 83, 85, 91, 93, 95, 97, 100});
  BerechneZahlen(ansicht);
  const std::pair<int, std::vector<int>> linien[] = {{11, {4, 1, 2, 0, 0}},  {21, {2, 1, 0, 0, 0}},
                                                     {46, {10, 0, 0, 0, 0}}, {51, {1, 1, 1, 1, 1}},
                                                     {91, {1, 1, 3, 0, 0}},  {96, {1, 1, 1, 1, 1}}};
  for (const auto &[platz, zahlen] : linien) {
    const auto linie = ansicht.zahlen.begin() + platz;
    EXPECT_EQ(std::vector(linie, linie + kPlaetzeJeLinie), zahlen) << platz;
    for (std::size_t k = 0; k < zahlen.size(); ++k)
      EXPECT_EQ(ansicht.zahlSichtbar.at(static_cast<std::size_t>(platz) + k), zahlen[k] != 0);
  }
  EXPECT_EQ(spiel.SarantenRest, 26);
  spiel = {};
  BerechneZahlen(ansicht);
  EXPECT_EQ(std::count(ansicht.zahlSichtbar.begin(), ansicht.zahlSichtbar.end(), true), 0);
}

TEST_F(Kern, JedeZelleHatDieGleicheChance) {
  constexpr int kBretter = 1500;
  constexpr std::array kJeBrett{36, 5, 12};  // Gems, start cells and marks.
  using Uhr = std::uint64_t (*)(std::uint64_t);
  // Three clocks: one that ticks at each draw, one that skips, one that stands for eight draws.
  for (const Uhr uhr : {Uhr([](auto n) { return n; }), Uhr([](auto n) { return n * 1'000'003; }),
                        Uhr([](auto n) { return n / 8; })}) {
    zufall.Uhr = [uhr, n = std::uint64_t{0}]() mutable { return uhr(++n); };
    std::array<std::array<int, kZellen>, kJeBrett.size()> anzahl{};
    for (int brett = 0; brett < kBretter; ++brett) {
      SpielAbLevelBeginnen(ansicht, kLetztesLevel - 1, kModusExperte);
      for (std::size_t n = 0; n < kZellen; ++n) {
        anzahl[0].at(n) += spiel.Feld.at(n + 1).IstSarant ? 1 : 0;
        anzahl[1].at(n) += ansicht.kacheln.at(n + 1) == Kachel::Sarant ? 1 : 0;
        anzahl[2].at(n) += ansicht.kacheln.at(n + 1) == Kachel::Markiert ? 1 : 0;
      }
    }
    for (std::size_t art = 0; art < kJeBrett.size(); ++art) {
      const auto [seltenste, haeufigste] =
          std::minmax_element(anzahl[art].begin(), anzahl[art].end());
      const int erwartet = kBretter * kJeBrett[art] / kZellen;
      EXPECT_GT(*seltenste, erwartet * 3 / 5) << art;
      EXPECT_LT(*haeufigste, erwartet * 3 / 2) << art;
    }
  }
}

TEST_F(Kern, DieEchteUhrStehtNie) {
  zufall = {};
  SpielBeginnen(ansicht);
  const auto brett = spiel.lstWiederHolen;
  SpielBeginnen(ansicht);
  EXPECT_NE(spiel.lstWiederHolen, brett);
}

}  // namespace
