// How long the rules take on a screen made of arrays, and what a level costs in the real window.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "controls/bilder.h"
#include "core/befehle.h"
#include "core/level.h"
#include "core/zahlen.h"
#include "core/zug.h"
#include "platform/system.h"
#include "shell/frmSpielfeld.h"
#include "shell/start.h"
#include "tests/array_screen.h"

namespace {

constexpr int kModusEinfach = 1;

/// Sets up the level given as argument, with its numbers and its panel.
void LevelAufbau(benchmark::State &state) {
  ArrayScreen ansicht;
  for (auto _ : state)
    SpielAbLevelBeginnen(ansicht, static_cast<int>(state.range(0)) - 1, kModusEinfach);
}
BENCHMARK(LevelAufbau)->Arg(1)->Arg(20)->Arg(40)->Unit(benchmark::kMicrosecond);

template <void (*Schritt)(Ansicht &)>
void AufLevel1(benchmark::State &state) {
  ArrayScreen ansicht;
  SpielAbLevelBeginnen(ansicht, 0, kModusEinfach);
  for (auto _ : state)
    Schritt(ansicht);
}
BENCHMARK(AufLevel1<BerechneZahlen>)->Name("Zahlen")->Unit(benchmark::kMicrosecond);
BENCHMARK(AufLevel1<ZugAuswerten>)->Name("Auswertung")->Unit(benchmark::kMicrosecond);

/// Plays a whole level in the real window, painting included; counts the pictures decoded
/// meanwhile.
void LevelImFenster(benchmark::State &state) {
  frmSpielfeld fenster;
  Main(fenster, Datenwurzel());
  spiel.SoundAn = false;
  QApplication::processEvents();
  const int vorher = GeladeneBilder();
  for (auto _ : state) {
    SpielAbLevelBeginnen(fenster, 0, kModusEinfach);
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
      if (spiel.Feld.at(static_cast<std::size_t>(zelle)).IstSarant)
        imgSar_MouseDown(fenster, zelle, kLinkeTaste);
      QApplication::processEvents();
    }
  }
  state.counters["Bilder"] = GeladeneBilder() - vorher;
}
BENCHMARK(LevelImFenster)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char *argv[]) {
  QApplication anwendung(argc, argv);
  RichteAnwendungEin(anwendung);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
