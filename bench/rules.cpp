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

constexpr int kEasy = 1;

/// Sets up the level given as argument, with its numbers and its panel.
void SetUpLevel(benchmark::State &state) {
  ArrayScreen screen;
  for (auto _ : state)
    SpielAbLevelBeginnen(screen, static_cast<int>(state.range(0)) - 1, kEasy);
}
BENCHMARK(SetUpLevel)->Arg(1)->Arg(20)->Arg(40)->Unit(benchmark::kMicrosecond);

template <void (*Step)(Ansicht &)>
void OnLevel1(benchmark::State &state) {
  ArrayScreen screen;
  SpielAbLevelBeginnen(screen, 0, kEasy);
  for (auto _ : state)
    Step(screen);
}
BENCHMARK(OnLevel1<BerechneZahlen>)->Name("ClueNumbers")->Unit(benchmark::kMicrosecond);
BENCHMARK(OnLevel1<ZugAuswerten>)->Name("Evaluation")->Unit(benchmark::kMicrosecond);

/// Plays a whole level in the real window, painting included; counts the pictures decoded
/// meanwhile.
void LevelInWindow(benchmark::State &state) {
  frmSpielfeld window;
  Main(window, Datenwurzel());
  spiel.SoundAn = false;
  QApplication::processEvents();
  const int before = GeladeneBilder();
  for (auto _ : state) {
    SpielAbLevelBeginnen(window, 0, kEasy);
    for (int cell = 1; cell <= kZellen; ++cell) {
      if (spiel.Feld.at(static_cast<std::size_t>(cell)).IstSarant)
        imgSar_MouseDown(window, cell, kLinkeTaste);
      QApplication::processEvents();
    }
  }
  state.counters["Pictures"] = GeladeneBilder() - before;
}
BENCHMARK(LevelInWindow)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char *argv[]) {
  QApplication application(argc, argv);
  RichteAnwendungEin(application);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
