#include <limits>

#include "tests/core/kernprobe.h"

namespace {

class Zug : public Kernprobe {};

TEST_F(Zug, tut_nichts_solange_kein_brett_liegt) {
  const std::string vorher = ansicht.modustext;
  for (const int taste : {kLinkeTaste, kRechteTaste})
    Klick(1, taste);
  EXPECT_EQ(Zaehle(Kachel::Verdeckt), kZellen);
  EXPECT_EQ(ansicht.modustext, vorher);
  EXPECT_FALSE(ansicht.IstSichtbar(Bedienung::imgNextLevel));
  EXPECT_TRUE(ansicht.klaenge.empty());
}

TEST_F(Zug, folgt_der_tafel_der_uebergaenge) {
  struct Fall {
    Kachel vorher;
    bool istSarant;
    int taste;
    Kachel nachher;
    std::vector<int> klaenge;
    bool textNeu;
  };
  const Fall faelle[] = {
      {Kachel::Verdeckt, true, kLinkeTaste, Kachel::Sarant, {kKlangBlip}, true},
      {Kachel::Verdeckt, false, kLinkeTaste, Kachel::Fehler, {kKlangFehler}, true},
      {Kachel::Verdeckt, true, kRechteTaste, Kachel::Markiert, {}, true},
      {Kachel::Verdeckt, false, 4, Kachel::Markiert, {}, true},
      {Kachel::Markiert, true, kLinkeTaste, Kachel::Markiert, {}, false},
      {Kachel::Markiert, false, kLinkeTaste, Kachel::Markiert, {}, false},
      {Kachel::Markiert, true, kRechteTaste, Kachel::Verdeckt, {}, true},
      {Kachel::Sarant, true, kLinkeTaste, Kachel::Sarant, {kKlangBlip}, true},
      {Kachel::Sarant, true, kRechteTaste, Kachel::Sarant, {}, true},
      {Kachel::Fehler, false, kLinkeTaste, Kachel::Fehler, {kKlangFehler}, true},
      {Kachel::Fehler, false, kRechteTaste, Kachel::Fehler, {}, true},
  };
  LegeBrett({1, 2, 3, 50});
  for (const Fall &fall : faelle) {
    const int zelle = fall.istSarant ? 1 : 7;
    ansicht.SetzeKachel(zelle, fall.vorher);
    ansicht.modustext = "alt";
    ansicht.klaenge.clear();
    Klick(zelle, fall.taste);
    EXPECT_EQ(ansicht.LiesKachel(zelle), fall.nachher);
    EXPECT_EQ(ansicht.klaenge, fall.klaenge);
    EXPECT_EQ(ansicht.modustext, fall.textNeu ? Moduszeile(3) : "alt");
    ansicht.SetzeKachel(zelle, Kachel::Verdeckt);
  }
  EXPECT_EQ(spiel.Punkte, kStartpunkte);
}

TEST_F(Zug, der_zweite_fehler_verliert_das_level) {
  LegeBrett({1, 2, 3});
  Klick(1);
  Klick(50);
  Klick(50);
  EXPECT_EQ(Fehler(), "_1");
  EXPECT_FALSE(ansicht.IstSichtbar(Bedienung::cmdWiederholen));
  ansicht.klaenge.clear();
  Klick(51);
  EXPECT_TRUE(ansicht.IstSichtbar(Bedienung::cmdWiederholen));
  EXPECT_EQ(ansicht.klaenge, (std::vector{kKlangFehler, kKlangFehler}));
  EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 400);
  EXPECT_EQ(ansicht.modustext, "Klicken Sie auf »Wiederholen«");
  EXPECT_EQ(Fehler() + Rest() + Levelpunkte(), "_2_2100");
  EXPECT_EQ(ansicht.ziffern.at({Ziffernreihe::imgLevel, 2}).first, Ziffernfarbe::Rot);
  EXPECT_EQ(ansicht.ziffern.at({Ziffernreihe::imgAuswertung, 4}).first, Ziffernfarbe::Rot);
  EXPECT_EQ(spiel.Punkte, 500);
  Klick(2);
  Klick(60, kRechteTaste);
  EXPECT_EQ(Zaehle(Kachel::Verdeckt), kZellen - 3);
}

TEST_F(Zug, die_letzte_sarante_gewinnt_auch_neben_einem_fehler) {
  const struct {
    std::int16_t modus;
    std::int32_t punkte;
    const char *levelpunkte;
    const char *panel;
  } faelle[] = {{1, 500, "400", "__500"},
                {2, 12345, "450", "12345"},
                {3, 0, "500", "_____"},
                {2, -300, "450", "_____"},
                {2, 123456, "450", "_____"}};
  for (const auto &fall : faelle) {
    spiel = {};
    ansicht = {};
    LegeBrett({10, 11});
    spiel.Spielmodus = fall.modus;
    spiel.Punkte = fall.punkte;
    Klick(99);
    Klick(10);
    Klick(11);
    EXPECT_TRUE(ansicht.IstSichtbar(Bedienung::imgNextLevel));
    EXPECT_TRUE(ansicht.IstSichtbar(Bedienung::imgSpeichern));
    EXPECT_TRUE(ansicht.speichernErlaubt);
    EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 300);
    EXPECT_EQ(ansicht.klaenge.back(), kKlangTada);
    EXPECT_EQ(ansicht.modustext, "Klicken Sie auf »Nächster Level«");
    EXPECT_EQ(Levelpunkte(), fall.levelpunkte);
    EXPECT_EQ(Punkte(), fall.panel);
    EXPECT_EQ(spiel.Punkte, fall.punkte);
    Klick(98);
    EXPECT_EQ(ansicht.LiesKachel(98), Kachel::Verdeckt);
  }
}

TEST_F(Zug, die_summe_bleibt_im_bereich) {
  using Grenzen = std::numeric_limits<std::int32_t>;
  spiel.Punkte = Grenzen::max() - 1;
  spiel.Levelpunkte = 450;
  EXPECT_EQ(SummePunkte(), Grenzen::max());
  spiel.Punkte = Grenzen::min() + 1;
  spiel.Levelpunkte = -100;
  EXPECT_EQ(SummePunkte(), Grenzen::min());
}

}  // namespace
