#include <set>

#include "tests/core/kernprobe.h"

namespace {

class Level : public Kernprobe {};

/// Start cells in the three modes and free-cell marks of a span of levels.
struct Hilfe {
  int bis;
  int einfach;
  int normal;
  int experte;
  int frei;
};
constexpr Hilfe kHilfen[] = {
    {3, 8, 6, 0, 2},    {5, 8, 6, 0, 4},      {6, 8, 6, 1, 4},    {7, 8, 6, 2, 4},
    {8, 8, 6, 3, 4},    {9, 8, 6, 4, 6},      {10, 8, 6, 5, 6},   {11, 8, 6, 6, 6},
    {12, 8, 6, 7, 6},   {13, 8, 6, 8, 6},     {14, 8, 6, 9, 8},   {15, 8, 6, 10, 8},
    {16, 8, 6, 11, 8},  {17, 8, 6, 12, 8},    {18, 8, 6, 13, 8},  {19, 8, 6, 14, 10},
    {20, 8, 6, 15, 10}, {24, 14, 12, 12, 10}, {29, 11, 9, 9, 10}, {30, 9, 7, 7, 10},
    {34, 9, 7, 7, 12},  {40, 7, 5, 5, 12},
};

TEST_F(Level, gibt_jedem_level_und_modus_seine_saranten_startfelder_und_freifelder) {
  for (int level = 1; level <= kLetztesLevel; ++level) {
    const Hilfe hilfe = *std::find_if(std::begin(kHilfen), std::end(kHilfen),
                                      [level](const Hilfe &h) { return level <= h.bis; });
    for (int modus = 1; modus <= kModi; ++modus) {
      SCOPED_TRACE(testing::Message() << "level " << level << " mode " << modus);
      SpielAbLevelBeginnen(ansicht, level - 1, modus);
      const int start = modus == 1 ? hilfe.einfach : modus == 2 ? hilfe.normal : hilfe.experte;
      EXPECT_EQ(Zaehle(Kachel::Sarant), start);
      EXPECT_EQ(Zaehle(Kachel::Markiert), hilfe.frei);
      EXPECT_EQ(spiel.SarantenRest, 76 - level - start);
      EXPECT_EQ(ansicht.klaenge, std::vector<int>(static_cast<std::size_t>(start), kKlangBlip));
      ansicht.klaenge.clear();
      std::set<std::string> saranten;
      for (int zelle = 1; zelle <= kZellen; ++zelle) {
        const bool istSarant = spiel.Feld.at(static_cast<std::size_t>(zelle)).IstSarant;
        if (istSarant)
          saranten.insert(std::to_string(zelle));
        EXPECT_FALSE(ansicht.LiesKachel(zelle) == Kachel::Markiert && istSarant);
        EXPECT_FALSE(ansicht.LiesKachel(zelle) == Kachel::Sarant && !istSarant);
      }
      EXPECT_EQ(saranten, std::set(spiel.lstWiederHolen.begin(), spiel.lstWiederHolen.end()));
      EXPECT_EQ(spiel.lstWiederHolen.size(), static_cast<std::size_t>(76 - level));
      EXPECT_EQ(spiel.SarantenListe[1], std::stoi(spiel.lstWiederHolen.front()));
    }
  }
}

TEST_F(Level, in_experte_bleibt_der_text_bis_zum_ersten_klick) {
  spiel.Spielmodus = 3;
  SpielAbLevelBeginnen(ansicht, 5, 3);
  imgNeuesSpiel_Click(ansicht);
  ansicht.antworten = {kJa};
  imgNeuesSpiel_Click(ansicht);
  EXPECT_EQ(ansicht.modustext, "Spielmodus:  Experte\r\nEs sind 70 Saranten auf dem Spielfeld.");
  Klick(Suche(Kachel::Verdeckt, true));
  EXPECT_EQ(ansicht.modustext, "Spielmodus:   Experte\r\nEs sind 75 Saranten auf dem Spielfeld.");
}

}  // namespace
