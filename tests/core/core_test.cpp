#include <numeric>
#include <set>

#include "core/anzeige.h"
#include "core/befehle.h"
#include "core/level.h"
#include "core/zahlen.h"
#include "core/zufall.h"
#include "core/zug.h"
#include "tests/approved.h"
#include "tests/array_screen.h"

namespace {

using enum Kachel;

/// A fresh game, a screen of arrays and a clock that counts.
class Rules : public testing::Test {
 protected:
  Rules() {
    spiel = {};
    zufall = {};
    zufall.Uhr = [seed = std::uint64_t{0}]() mutable { return ++seed; };
    WarteAufSpiel(screen);
    screen.Tell();
  }

  void Tell(const auto &...action) { (told << ... << action) << screen.Tell(); }
  /// Lays a board on the playfield and begins to play on it without any help.
  void LayBoard(const std::vector<int> &gems) {
    spiel.Feld = {};
    screen.tiles = {};
    for (const int cell : gems)
      spiel.ZelleVon(cell).IstSarant = true;
    spiel.Level = 1;
    ZeigeStatus(screen);
  }
  void Press(int cell, int button = kLinkeTaste) { imgSar_MouseDown(screen, cell, button); }
  std::vector<int> Covered(bool gems) {
    std::vector<int> cells;
    for (int cell = 1; cell <= kZellen; ++cell)
      if (spiel.ZelleVon(cell).IstSarant == gems && screen.LiesKachel(cell) == Verdeckt)
        cells.push_back(cell);
    return cells;
  }
  void WinLevel() {
    for (const int cell : Covered(true))
      Press(cell);
    Tell("level won");
  }

  ArrayScreen screen;
  Transcript told;
};

TEST_F(Rules, ThePanelLeavesTheUnitsOfPointsThatDoNotFit) {
  for (const int points : {42, 99999, -1, 0, 100000}) {
    spiel.Punkte = points;
    ZeigeStatus(screen);
    Tell("status");
  }
}

TEST_F(Rules, AMoveChangesItsCell) {
  Press(50);
  Press(50, kRechteTaste);
  Tell("before the first game");
  LayBoard({1, 2, 3, 50});
  for (const int button : {1, 2, 4}) {
    for (const int cell : {1, 7}) {
      for (const Kachel before : {Verdeckt, Markiert, Fehler, Sarant}) {
        screen.SetzeKachel(cell, before);
        screen.SetzeModustext("old");
        screen.Tell();
        Press(cell, button);
        Tell(cell == 1 ? "gem" : "free", " cell, button ", button, ": tile ",
             static_cast<int>(before), " -> ", static_cast<int>(screen.LiesKachel(cell)));
      }
      screen.SetzeKachel(cell, Verdeckt);
    }
  }
}

TEST_F(Rules, TheLastGemWinsEvenBesideAnError) {
  for (const auto &[mode, points] :
       {std::pair(1, 500), {2, 99999}, {3, 0}, {2, -300}, {2, 100000}}) {
    RaeumeLevelende(screen);
    LayBoard({10, 11});
    spiel.Spielmodus = static_cast<std::int16_t>(mode);
    spiel.Punkte = points;
    for (const int cell : {99, 10, 11, 98})  // The last one is dead already.
      Press(cell);
    Tell("won");
  }
}

TEST_F(Rules, EachLevelAndModeHasItsGemsStartCellsAndMarks) {
  for (int level = 1; level <= kLetztesLevel; ++level) {
    for (int mode = 1; mode <= kModi; ++mode) {
      SpielAbLevelBeginnen(screen, level - 1, mode);
      told << "level " << level << ", mode " << mode << ": " << spiel.Punkte << " points, "
           << screen.Count(Sarant) + Covered(true).size() << " gems, of which "
           << screen.Count(Sarant) << " open, " << screen.Count(Markiert) << " marks, "
           << Covered(false).size() << " free, numbers "
           << std::accumulate(screen.numbers.begin(), screen.numbers.end(), 0) << "\n";
    }
  }
  for (int cell = 1; cell <= kZellen; ++cell)  // The cells of the same seeds are always the same.
    told << (spiel.ZelleVon(cell).IstSarant ? "+" : "-")
         << static_cast<int>(screen.LiesKachel(cell)) << (cell % kLinie == 0 ? "\n" : " ");
}

TEST_F(Rules, AQuestionComesOnlyWithPointsAndOnlyYesBeginsAnew) {
  imgNeuesSpiel_Click(screen);
  Tell("new game");
  for (const std::int16_t answer : {kNein, kJa}) {
    const auto board = spiel.lstWiederHolen;
    screen.answers = {answer, answer};
    imgNeuesSpiel_Click(screen);
    Tell("answer ", answer, board == spiel.lstWiederHolen ? ", same board" : ", new board");
    imgEnde_Click(screen);
    Tell("end");
  }
  spiel.Punkte = 0;
  imgEnde_Click(screen);
  Tell("end without points");
}

TEST_F(Rules, TheSecondErrorLosesTheLevelWhichKeepsItsBoardAndCostsHundredPoints) {
  imgNeuesSpiel_Click(screen);
  Tell("new game");
  const auto board = spiel.lstWiederHolen;
  const auto numbers = screen.numbers;
  for (int loss = 0; loss < 6; ++loss) {
    const std::vector<int> free = Covered(false);
    Press(free[0]);
    Press(free[0]);
    Tell("error");
    Press(free[1]);
    Tell("second error");
    Press(free[2]);
    Press(free[3], kRechteTaste);
    Tell("cells are dead");
    NaechsterLevelBlinkt(screen);
    Tell("tick");
    screen.tiles.fill(Fehler);
    cmdWiederholen_Click(screen);
    Tell("again");
    EXPECT_TRUE(spiel.lstWiederHolen == board && screen.numbers == numbers);
  }
}

TEST_F(Rules, BehindTheLastLevelTheGameEnds) {
  SpielAbLevelBeginnen(screen, kLetztesLevel - 3, 2);
  spiel.Bestenschwelle = spiel.Punkte + 450;
  Tell("level 38");
  for (int level = kLetztesLevel - 2; level <= kLetztesLevel; ++level) {
    WinLevel();
    imgNextLevel_Click(screen);
    Tell("next level");
  }
}

TEST_F(Rules, NumbersStandInTheOrderOfTheWalkFromTheEnd) {
  // Column 3 holds, from the top, runs of 2, 1 and 4, column 10 is full; the rows 1 and 10 hold
  // five gems alone, row 9 runs of 3, 1 and 1.
  LayBoard({1,  3,  5,  7,  13, 33, 63, 73, 10, 20, 30, 40, 50,
            60, 70, 80, 90, 81, 82, 83, 85, 91, 93, 95, 97, 100});
  for (const char *board : {"laid", "empty"}) {
    BerechneZahlen(screen);
    told << board;
    for (std::size_t place = 1; place <= kZahlfelder; ++place)
      told << (place % 5 == 1 ? " " : "")
           << (screen.numberVisible.at(place) ? "0123456789X"[screen.numbers.at(place)] : '_');
    told << "\n";
    spiel = {};
  }
}

TEST_F(Rules, TheRealClockSeedsEachRunOfTheProgram) {
  std::set<std::vector<std::string>> boards;
  for (int run = 0; run < 3; ++run) {
    zufall = {};
    SpielBeginnen(screen);
    EXPECT_TRUE(boards.insert(spiel.lstWiederHolen).second);
  }
}

}  // namespace
