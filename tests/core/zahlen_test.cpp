#include <algorithm>

#include "tests/core/kernprobe.h"

namespace {

class Zahlen : public Kernprobe {
 protected:
  /// The runs of a line as the player reads them, from the left or from the top.
  static std::vector<int> Laeufe(int ersteZelle, int schritt) {
    std::vector<int> laeufe{0};
    for (int k = 0; k < kLinie; ++k) {
      if (spiel.Feld.at(static_cast<std::size_t>(ersteZelle + k * schritt)).IstSarant)
        ++laeufe.back();
      else if (laeufe.back() != 0)
        laeufe.push_back(0);
    }
    if (laeufe.back() == 0)
      laeufe.pop_back();
    return laeufe;
  }

  /// The visible numbers of a line in the same direction: the first place is next to the board.
  std::vector<int> Gezeigt(int ersterPlatz) const {
    std::vector<int> zahlen;
    for (int platz = ersterPlatz; platz < ersterPlatz + kPlaetzeJeLinie; ++platz) {
      if (ansicht.zahlSichtbar.at(static_cast<std::size_t>(platz)))
        zahlen.insert(zahlen.begin(), ansicht.zahlen.at(static_cast<std::size_t>(platz)));
    }
    return zahlen;
  }

  void PruefeAlleLinien() {
    BerechneZahlen(ansicht);
    for (int n = 1; n <= kLinie; ++n) {
      EXPECT_EQ(Gezeigt(5 * n - 4), Laeufe(n, 10)) << "column " << n;
      EXPECT_EQ(Gezeigt(50 + 5 * n - 4), Laeufe(10 * n - 9, 1)) << "row " << n;
    }
  }

  void SetzeBrett(const std::function<bool(int zeile, int spalte)> &istSarant) {
    for (int zelle = 1; zelle <= kZellen; ++zelle)
      spiel.Feld.at(static_cast<std::size_t>(zelle)).IstSarant =
          istSarant((zelle - 1) / kLinie + 1, (zelle - 1) % kLinie + 1);
  }
};

TEST_F(Zahlen, stimmen_fuer_besondere_und_zufaellige_bretter) {
  SetzeBrett([](int, int) { return true; });
  PruefeAlleLinien();
  EXPECT_EQ(ansicht.zahlen[1], 10);
  SetzeBrett([](int zeile, int spalte) { return (zeile + spalte) % 2 == 0; });
  PruefeAlleLinien();
  EXPECT_TRUE(ansicht.zahlSichtbar[100]);
  SetzeBrett([](int, int) { return false; });
  PruefeAlleLinien();
  EXPECT_EQ(std::count(ansicht.zahlSichtbar.begin(), ansicht.zahlSichtbar.end(), true), 0);
  SetzeBrett([](int zeile, int spalte) { return zeile == 1 || spalte == 10; });
  PruefeAlleLinien();
  for (std::int16_t level = 0; level < kLetztesLevel; ++level) {
    spiel.Level = level;
    LevelBeginnen(ansicht);
    PruefeAlleLinien();
  }
}

TEST_F(Zahlen, stehen_in_der_reihenfolge_des_gangs_vom_ende_her) {
  // Column 3 holds, from the top, runs of 2, 1 and 4; row 10 holds 3 and 1 besides.
  for (const int zelle : {3, 13, 33, 63, 73, 83, 93})
    spiel.Feld.at(static_cast<std::size_t>(zelle)).IstSarant = true;
  for (const int zelle : {91, 92, 95})
    spiel.Feld.at(static_cast<std::size_t>(zelle)).IstSarant = true;
  BerechneZahlen(ansicht);
  EXPECT_EQ(std::vector(ansicht.zahlen.begin() + 11, ansicht.zahlen.begin() + 16),
            (std::vector{4, 1, 2, 0, 0}));
  EXPECT_EQ(std::vector(ansicht.zahlen.begin() + 96, ansicht.zahlen.begin() + 101),
            (std::vector{1, 3, 0, 0, 0}));
  EXPECT_FALSE(ansicht.zahlSichtbar[14]);
  EXPECT_EQ(spiel.SarantenRest, 10);
}

}  // namespace
