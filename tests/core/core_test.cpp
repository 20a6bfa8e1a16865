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
    const std::vector<int> gems = Covered(true);
    for (const int cell : gems) {
      screen.shown["sounds"].clear();  // Those of the last gem are told.
      Press(cell);
    }
    Tell("level won");
  }

  ArrayScreen screen;
  Transcript told;
};

TEST_F(Rules, ThePanelLeavesTheUnitsOfPointsThatDoNotFit) {
  for (const auto &[points, digits] :
       {std::pair(42, "___42"), {99999, "99999"}, {-1, "____9"}, {0, "____0"}, {100000, "____0"}}) {
    spiel.Punkte = points;
    ZeigeStatus(screen);
    EXPECT_EQ(screen.shown["panel"], std::string(digits) + " ___ [_][0] _0 _0 ");
  }
}

TEST_F(Rules, AMoveChangesItsCell) {
  Press(50);
  Press(50, kRechteTaste);
  Tell("before the first game");
  LayBoard({1, 2, 3, 50});
  static constexpr std::array kTiles{"covered", "marked", "error", "gem"};  // In order of `Kachel`.
  for (const auto &[button, name] : {std::pair(1, "left"), {2, "right"}, {4, "middle"}}) {
    for (const int cell : {1, 100}) {
      told << (cell == 1 ? "gem" : "free") << " cell, " << name << " button";
      for (const Kachel before : {Verdeckt, Markiert, Fehler, Sarant}) {
        screen.SetzeKachel(cell, before);
        screen.SetzeModustext("");
        spiel.Fehler = 0;
        Press(cell, button);
        told << " | " << Element(kTiles, before) << ": " << Element(kTiles, screen.LiesKachel(cell))
             << " " << screen.shown["sounds"] << (screen.shown["text"].empty() ? "" : " text")
             << (spiel.Fehler == 1 ? " counts" : "");
        screen.Tell();
      }
      told << "\n";
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
  std::set<std::pair<int, Kachel>> tiles;
  for (int level = 1; level <= kLetztesLevel; ++level) {
    std::ostringstream open, points;
    for (int mode = 1; mode <= kModi; ++mode) {
      SpielAbLevelBeginnen(screen, level - 1, mode);
      open << screen.Count(Sarant) << " ";
      points << spiel.Punkte << " ";
      for (int cell = 1; cell <= kZellen; ++cell)
        tiles.emplace(cell, screen.LiesKachel(cell));
      EXPECT_EQ(screen.Count(Sarant) + Covered(true).size(), 76 - level);
      EXPECT_EQ(std::accumulate(screen.numbers.begin(), screen.numbers.end(), 0), 2 * (76 - level));
    }
    told << "level " << level << ": marks " << screen.Count(Markiert) << " | open gems "
         << open.str() << "| points " << points.str() << "\n";
  }
  EXPECT_EQ(tiles.size(), 3 * kZellen) << "a cell was never open, marked or covered";
}

TEST_F(Rules, AQuestionComesOnlyWithPointsAndOnlyYesBeginsAnew) {
  imgNeuesSpiel_Click(screen);
  Tell("new game");
  for (const std::int16_t answer : {kNein, kJa}) {
    const auto board = spiel.lstWiederHolen;
    screen.answers = {answer, answer};
    imgNeuesSpiel_Click(screen);
    Tell(answer == kJa ? "yes" : "no",
         board == spiel.lstWiederHolen ? ", same board" : ", another");
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
  for (const int points : {500, 400, 0}) {
    spiel.Punkte = points;
    const std::vector<int> free = Covered(false);
    Press(free[0]);
    Press(free[0]);
    Tell("error");
    Press(free[1]);
    Tell("second error");
    Press(free[2]);
    Press(free[3], kRechteTaste);
    NaechsterLevelBlinkt(screen);
    Tell("dead cells, and a tick");
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
  const auto Numbers = [this] {
    BerechneZahlen(screen);
    std::string numbers;
    for (std::size_t place = 1; place <= kZahlfelder; ++place)
      numbers += screen.numberVisible.at(place) ? "0123456789X"[screen.numbers.at(place)] : '_';
    return numbers;
  };
  EXPECT_EQ(Numbers(),
            "21___1____412_______21________11_____________X____"
            "1111111___1____11___1____1____11___11___113__11111");
  spiel = {};
  EXPECT_EQ(Numbers(), std::string(kZahlfelder, '_'));
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
