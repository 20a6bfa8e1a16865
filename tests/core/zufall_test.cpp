#include "tests/core/kernprobe.h"

namespace {

class Zufallsprobe : public Kernprobe {};

/// How often each cell came up, and how many cells come up in one board.
struct Haeufigkeit {
  std::array<int, kZellen + 1> zelle{};
  double jeBrett;

  /// Pearson's statistic for draws without replacement, chi-square with 99 degrees of freedom.
  double ChiQuadrat(int bretter) const {
    const double anteil = jeBrett / kZellen;
    double summe = 0;
    for (int n = 1; n <= kZellen; ++n) {
      const double abstand = zelle.at(static_cast<std::size_t>(n)) - bretter * anteil;
      summe += abstand * abstand;
    }
    return summe / (bretter * anteil * (1 - anteil)) * (kZellen - 1) / kZellen;
  }
};

TEST_F(Zufallsprobe, jede_zelle_hat_die_gleiche_chance) {
  constexpr int kBretter = 20000;
  constexpr double kGrenze = 148.23;  // Exceeded with a probability of 0.001.
  // Three clocks: one that ticks at each draw, one that skips, one that stands for eight draws.
  const std::function<std::uint64_t(std::uint64_t)> uhren[] = {
      [](std::uint64_t n) { return n; }, [](std::uint64_t n) { return n * 1'000'003; },
      [](std::uint64_t n) { return n / 8; }};
  for (const auto &uhr : uhren) {
    zufall.Uhr = [uhr, n = std::uint64_t{0}]() mutable { return uhr(++n); };
    Haeufigkeit saranten{{}, 36};
    Haeufigkeit startfelder{{}, 5};
    Haeufigkeit marken{{}, 12};
    for (int brett = 0; brett < kBretter; ++brett) {
      spiel.Level = kLetztesLevel - 1;
      LevelBeginnen(ansicht);
      for (std::size_t n = 1; n <= kZellen; ++n) {
        saranten.zelle.at(n) += spiel.Feld.at(n).IstSarant ? 1 : 0;
        startfelder.zelle.at(n) += ansicht.kacheln.at(n) == Kachel::Sarant ? 1 : 0;
        marken.zelle.at(n) += ansicht.kacheln.at(n) == Kachel::Markiert ? 1 : 0;
      }
    }
    EXPECT_LT(saranten.ChiQuadrat(kBretter), kGrenze);
    EXPECT_LT(startfelder.ChiQuadrat(kBretter), kGrenze);
    EXPECT_LT(marken.ChiQuadrat(kBretter), kGrenze);
  }
}

TEST_F(Zufallsprobe, gleiche_uhr_gleiches_brett_und_die_echte_uhr_steht_nie) {
  SpielBeginnen(ansicht);
  const auto brett = spiel.lstWiederHolen;
  zufall.Uhr = [saat = std::uint64_t{0}]() mutable { return ++saat; };
  SpielBeginnen(ansicht);
  EXPECT_EQ(spiel.lstWiederHolen, brett);

  zufall = {};
  SpielBeginnen(ansicht);
  const auto erstes = spiel.lstWiederHolen;
  SpielBeginnen(ansicht);
  EXPECT_NE(spiel.lstWiederHolen, erstes);
}

}  // namespace
