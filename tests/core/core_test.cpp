#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

#include "core/anzeige.h"
#include "core/befehle.h"
#include "core/level.h"
#include "core/zahlen.h"
#include "core/zufall.h"
#include "core/zug.h"
#include "tests/array_screen.h"

namespace {

using enum Kachel;

/// A fresh record, a screen of arrays and a clock that counts.
class Rules : public testing::Test {
 protected:
  Rules() { Restart(); }
  ~Rules() override { zufall = {}; }

  void Restart() {
    spiel = {};
    screen = {};
    zufall.Uhr = [seed = std::uint64_t{0}]() mutable { return ++seed; };
    WarteAufSpiel(screen);
  }
  /// Lays a board on the playfield and begins to play on it without any help.
  void LayBoard(const std::vector<int> &gems) {
    for (const int cell : gems)
      spiel.ZelleVon(cell).IstSarant = true;
    spiel.Level = 1;
    spiel.Punkte = kStartpunkte;
    ZeigeStatus(screen);
  }
  void Press(int cell, int button = kLinkeTaste) { imgSar_MouseDown(screen, cell, button); }
  void WinLevel() {
    for (int cell = 1; cell <= kZellen; ++cell)
      if (spiel.ZelleVon(cell).IstSarant)
        Press(cell);
    ASSERT_TRUE(screen.IstSichtbar(Bedienung::imgNextLevel));
  }

  int Count(Kachel tile) const {
    return static_cast<int>(std::count(screen.tiles.begin() + 1, screen.tiles.end(), tile));
  }
  /// The rows of the panel, and what shows that a level is over: buttons, interval of the arrow.
  std::string Panel() {
    std::string text;
    for (const auto &[place, digit] : screen.digits)
      text += digit + (place.second == 0 ? " " : "");
    for (const auto &[control, name] : {std::pair(Bedienung::imgNextLevel, "next "),
                                        {Bedienung::imgSpeichern, "save "},
                                        {Bedienung::cmdWiederholen, "repeat "}})
      text += screen.IstSichtbar(control) ? name : "";
    return text + std::to_string(screen.timers[Pfeil::Weiter]);
  }
  void ExpectCleanLevel(int level, int start, int marks) {
    const auto pair = [](int n) { return (n < 10 ? " _" : " ") + std::to_string(n); };
    const std::string shown = " ___ [_][0]" + pair(76 - level - start) + pair(level) + " 0";
    EXPECT_TRUE(Panel().ends_with(shown)) << Panel();
    EXPECT_EQ(screen.arrows[Pfeil::Weiter], kKeinPfeil);
    EXPECT_TRUE(spiel.Levelpunkte == 0 && Count(Fehler) == 0);
    EXPECT_TRUE(Count(Sarant) == start && Count(Markiert) == marks);
  }

  ArrayScreen screen;
};

TEST_F(Rules, ThePanelLeavesTheUnitsOfPointsThatDoNotFit) {
  EXPECT_EQ(Panel(), "____0 ___ [_][0] _0 _0 0");
  for (const auto &[points, shown] :
       {std::pair(42, "___42"), {99999, "99999"}, {-1, "____9"}, {0, "____0"}, {100000, "____0"}}) {
    spiel.Punkte = points;
    ZeigeStatus(screen);
    EXPECT_EQ(Panel(), shown + std::string(" ___ [_][0] _0 _0 0"));
  }
}

TEST_F(Rules, AMoveFollowsTheTableOfTransitions) {
  Press(50);
  Press(50, kRechteTaste);
  EXPECT_EQ(Count(Verdeckt), kZellen) << "before the first game";
  EXPECT_TRUE(screen.modeText.starts_with("Wählen Sie") && screen.sounds.empty());
  constexpr int kGem = 1, kFree = 7;
  const struct {
    int cell, button, sound;
    std::array<Kachel, 4> after;  ///< By the tile before, in the order of its values.
  } moves[] = {{kGem, 1, kSoundBlip, {Sarant, Markiert, Sarant, Sarant}},
               {kFree, 1, kSoundFehler, {Fehler, Markiert, Fehler, Fehler}},
               {kGem, 2, kKeinSound, {Markiert, Verdeckt, Fehler, Sarant}},
               {kFree, 4, kKeinSound, {Markiert, Verdeckt, Fehler, Sarant}}};
  LayBoard({kGem, 2, 3, 50});
  for (const auto &[cell, button, sound, after] : moves) {
    for (const Kachel before : {Verdeckt, Markiert, Fehler, Sarant}) {
      const bool dead = button == 1 && before == Markiert;
      screen.SetzeKachel(cell, before);
      screen.modeText = "old";
      screen.sounds.clear();
      Press(cell, button);
      EXPECT_EQ(screen.LiesKachel(cell), Element(after, before));
      EXPECT_EQ(screen.sounds, std::vector<int>(sound != kKeinSound && !dead, sound));
      EXPECT_EQ(screen.modeText, dead ? "old" : Moduszeile(3));
    }
    screen.SetzeKachel(cell, Verdeckt);
  }
}

TEST_F(Rules, TheLastGemWinsEvenBesideAnError) {
  using Win = std::tuple<std::int16_t, std::int32_t, std::string>;
  const Win wins[] = {{1, 500, "__500 400"},
                      {2, 99999, "99999 450"},
                      {3, 0, "_____ 500"},
                      {2, -300, "_____ 450"},
                      {2, 100000, "_____ 450"}};
  for (const auto &[mode, points, shown] : wins) {
    Restart();
    LayBoard({10, 11});
    spiel.Spielmodus = mode;
    spiel.Punkte = points;
    for (const int cell : {99, 10, 11, 98})  // The last one is dead already.
      Press(cell);
    EXPECT_EQ(screen.LiesKachel(98), Verdeckt);
    EXPECT_EQ(Panel(), shown + " [_][1] _0 _1 next save 300");
    EXPECT_EQ(screen.sounds.back(), kSoundTada);
    EXPECT_EQ(screen.modeText, "Klicken Sie auf »Nächster Level«");
  }
}

/// Up to this level: start cells in the modes 1 and 2, and free-cell marks.
constexpr int kHelp[][4] = {{3, 8, 6, 2},   {8, 8, 6, 4},     {13, 8, 6, 6},   {18, 8, 6, 8},
                            {20, 8, 6, 10}, {24, 14, 12, 10}, {29, 11, 9, 10}, {30, 9, 7, 10},
                            {34, 9, 7, 12}, {40, 7, 5, 12}};

TEST_F(Rules, EachLevelAndModeHasItsGemsStartCellsAndMarks) {
  for (int level = 1; level <= kLetztesLevel; ++level) {
    const int *help = *std::find_if(std::begin(kHelp), std::end(kHelp),
                                    [level](const int *h) { return level <= h[0]; });
    for (int mode = 1; mode <= kModi; ++mode) {
      SCOPED_TRACE(testing::Message() << "level " << level << " mode " << mode);
      screen.sounds.clear();
      SpielAbLevelBeginnen(screen, level - 1, mode);
      // In Experte the first levels help little, the others as in Normal.
      const int start = mode < 3 ? help[mode] : level > 20 ? help[2] : std::max(0, level - 5);
      EXPECT_EQ(spiel.Punkte, level == 1 ? 500 : (level - 1) * (mode == kModusExperte ? 350 : 300));
      ExpectCleanLevel(level, start, help[3]);
      EXPECT_EQ(screen.sounds, std::vector<int>(static_cast<std::size_t>(start), kSoundBlip));
      EXPECT_EQ(std::accumulate(screen.numbers.begin(), screen.numbers.end(), 0), 2 * (76 - level));
      for (int cell = 1; cell <= kZellen; ++cell)
        EXPECT_NE(screen.LiesKachel(cell), spiel.ZelleVon(cell).IstSarant ? Markiert : Sarant);
      WinLevel();
    }
  }
}

TEST_F(Rules, AQuestionComesOnlyWithPointsAndOnlyYesBeginsAnew) {
  imgNeuesSpiel_Click(screen);
  EXPECT_TRUE(screen.messages.empty());
  EXPECT_EQ(Panel(), "__500 ___ [_][0] 69 _1 0");
  EXPECT_TRUE(screen.timers[Pfeil::Start] == 0 && screen.arrows[Pfeil::Start] == kKeinPfeil);
  EXPECT_TRUE(!screen.modeRowVisible && screen.modeColour == Textfarbe::Blau);
  const auto board = spiel.lstWiederHolen;
  screen.answers = {kNein, kJa};
  for (const bool anew : {false, true}) {
    imgNeuesSpiel_Click(screen);
    EXPECT_EQ(spiel.lstWiederHolen != board, anew);
  }
  for (const bool playing : {true, false}) {
    spiel.Punkte = playing ? 500 : 0;
    imgEnde_Click(screen);
    EXPECT_NE(screen.ended, playing);
  }
  EXPECT_EQ(screen.messages.size(), 3U);
}

TEST_F(Rules, TheSecondErrorLosesTheLevelWhichKeepsItsBoardAndCostsHundredPoints) {
  imgNeuesSpiel_Click(screen);
  const auto board = spiel.lstWiederHolen;
  const auto numbers = screen.numbers;
  for (int points = 400; points >= -100; points -= 100) {
    std::vector<int> free;
    for (int cell = 1; cell <= kZellen; ++cell)
      if (!spiel.ZelleVon(cell).IstSarant && screen.LiesKachel(cell) == Verdeckt)
        free.push_back(cell);
    Press(free[0]);
    Press(free[0]);
    EXPECT_TRUE(Panel().ends_with(" ___ [_][1] 69 _1 0")) << Panel();
    screen.sounds.clear();
    Press(free[1]);
    EXPECT_TRUE(Panel().ends_with(" [1][0][0] [_][2] 69 _1 repeat 400")) << Panel();
    EXPECT_EQ(screen.sounds, (std::vector{kSoundFehler, kSoundFehler}));
    EXPECT_EQ(screen.modeText, "Klicken Sie auf »Wiederholen«");
    Press(free[2]);
    Press(free[3], kRechteTaste);
    EXPECT_EQ(Count(Fehler) + Count(Markiert), 2 + 2) << "cells are dead";
    NaechsterLevelBlinkt(screen);
    screen.tiles.fill(Fehler);
    cmdWiederholen_Click(screen);
    EXPECT_TRUE(spiel.lstWiederHolen == board && screen.numbers == numbers);
    EXPECT_EQ(spiel.Punkte, points);
    ExpectCleanLevel(1, 6, 2);
  }
  EXPECT_EQ(Panel(), "____0 ___ [_][0] 69 _1 0");
}

TEST_F(Rules, BehindTheLastLevelTheGameEnds) {
  SpielAbLevelBeginnen(screen, kLetztesLevel - 3, 2);
  spiel.Bestenschwelle = spiel.Punkte + 450;
  for (int level = kLetztesLevel - 2; level <= kLetztesLevel; ++level) {
    ExpectCleanLevel(level, 5, 12);
    WinLevel();
    imgNextLevel_Click(screen);
    EXPECT_EQ(screen.IstSichtbar(Bedienung::imgBester), level == kLetztesLevel - 1);
  }
  ASSERT_EQ(screen.messages.size(), 2U);
  EXPECT_EQ(screen.messages[1].lblMeldung, MeldungVielenDank.lblMeldung);
  EXPECT_EQ(screen.checksOfBest, 1);
  EXPECT_TRUE(screen.ended && spiel.Punkte == 0);
  EXPECT_EQ(Count(Verdeckt), kZellen);
}

TEST_F(Rules, NumbersStandInTheOrderOfTheWalkFromTheEnd) {
  // Column 3 holds, from the top, runs of 2, 1 and 4, column 10 is full; the rows 1 and 10 hold
  // five gems alone, row 9 runs of 3, 1 and 1.
  LayBoard({1,  3,  5,  7,  13, 33, 63, 73, 10, 20, 30, 40, 50,
            60, 70, 80, 90, 81, 82, 83, 85, 91, 93, 95, 97, 100});
  BerechneZahlen(screen);
  for (const auto &[place, numbers] : {std::pair(11, "412__"),
                                       {21, "21___"},
                                       {46, "X____"},
                                       {51, "11111"},
                                       {91, "113__"},
                                       {96, "11111"}}) {
    std::string shown;
    for (std::size_t k = 0; k < kPlaetzeJeLinie; ++k)
      shown +=
          screen.numberVisible.at(place + k) ? "0123456789X"[screen.numbers.at(place + k)] : '_';
    EXPECT_EQ(shown, numbers) << place;
  }
  spiel = {};
  BerechneZahlen(screen);
  EXPECT_EQ(std::count(screen.numberVisible.begin(), screen.numberVisible.end(), true), 0);
}

TEST_F(Rules, EachCellHasTheSameChance) {
  std::map<std::pair<int, int>, int> found;  // Of gems, start cells and marks, by cell.
  for (int board = 0; board < 1500; ++board) {
    SpielAbLevelBeginnen(screen, kLetztesLevel - 1, kModusExperte);
    for (int cell = 1; cell <= kZellen; ++cell) {
      found[{36, cell}] += spiel.ZelleVon(cell).IstSarant ? 1 : 0;
      found[{5, cell}] += screen.LiesKachel(cell) == Sarant ? 1 : 0;
      found[{12, cell}] += screen.LiesKachel(cell) == Markiert ? 1 : 0;
    }
  }
  for (const auto &[key, count] : found)
    EXPECT_NEAR(count, 15 * key.first, 15 * key.first / 2) << key.first << " " << key.second;
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
