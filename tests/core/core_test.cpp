#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>

#include "core/anzeige.h"
#include "core/befehle.h"
#include "core/level.h"
#include "core/zahlen.h"
#include "core/zufall.h"
#include "core/zug.h"
#include "tests/array_screen.h"

namespace {

using enum Kachel;

Zelle &Cell(int n) {
  return spiel.Feld.at(static_cast<std::size_t>(n));
}

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
      Cell(cell).IstSarant = true;
    spiel.Level = 1;
    spiel.Punkte = kStartpunkte;
    ZeigeStatus(screen);
  }
  void Press(int cell, int button = kLinkeTaste) { imgSar_MouseDown(screen, cell, button); }
  /// Presses covered cells with or without a gem until the level has ended that way.
  void PlayLevel(bool gems, Bedienung end) {
    for (int cell = 1; cell <= kZellen; ++cell)
      if (Cell(cell).IstSarant == gems && screen.LiesKachel(cell) == Verdeckt)
        Press(cell);
    ASSERT_TRUE(screen.IstSichtbar(end));
  }
  void WinLevel() { PlayLevel(true, Bedienung::imgNextLevel); }
  void LoseLevel() { PlayLevel(false, Bedienung::cmdWiederholen); }

  int Count(Kachel tile) const {
    return static_cast<int>(std::count(screen.tiles.begin() + 1, screen.tiles.end(), tile));
  }
  /// What shows that a level is won or lost, and the interval of the arrow; empty while playing.
  std::string Phase() {
    std::string phase;
    for (const auto &[control, name] : {std::pair(Bedienung::imgNextLevel, "next "),
                                        {Bedienung::imgSpeichern, "save "},
                                        {Bedienung::cmdWiederholen, "repeat "}})
      phase += screen.IstSichtbar(control) ? name : "";
    const int interval = screen.timers[Pfeil::Weiter];
    return phase + (interval == 0 ? "" : std::to_string(interval));
  }
  void ExpectCleanLevel() {
    EXPECT_EQ(Phase(), "");
    EXPECT_EQ(screen.arrows[Pfeil::Weiter], kKeinPfeil);
    EXPECT_EQ(spiel.Levelpunkte, 0);
    EXPECT_EQ(Count(Fehler), 0);
    EXPECT_EQ(Count(Sarant), spiel.Startfelder);
    EXPECT_EQ(Count(Markiert), FreifelderFuer(spiel.Level));
  }
  std::string Row(Panelreihe row, int places) {
    std::string text;
    while (places-- > 0)
      text += screen.digits.at({row, places});
    return text;
  }
  std::string Points() { return Row(Panelreihe::Punkte, 5); }
  std::string LevelPoints() { return Row(Panelreihe::Levelpunkte, 3); }
  /// Errors, rest and level, two places each.
  std::string Counts() {
    return Row(Panelreihe::Fehlversuche, 2) + Row(Panelreihe::NochOffen, 2) +
           Row(Panelreihe::Level, 2);
  }

  ArrayScreen screen;
};

TEST_F(Rules, PointsStandRightAndLeaveTheUnitsIfTheyDoNotFit) {
  EXPECT_EQ(Points() + Counts(), "____0[_][0]_0_0");
  const std::pair<std::int32_t, const char *> cases[] = {
      {7, "____7"},         {42, "___42"},        {500, "__500"},  {20500, "20500"},
      {99999, "99999"},     {-1, "____9"},        {-100, "____9"}, {100000, "____9"},
      {INT32_MIN, "____9"}, {INT32_MAX, "____9"}, {0, "____0"}};
  for (const auto &[points, shown] : cases) {
    spiel.Punkte = points;
    ZeigeStatus(screen);
    EXPECT_EQ(Points(), shown) << points;
  }
  ZeigeLevelpunkte(screen, 450, Ziffernfarbe::Gruen);
  spiel.Fehler = 12;
  for (const auto &[level, shown] : {std::pair(9, "[1][2]_0_9___"), {10, "[1][2]_010___"}}) {
    spiel.Level = static_cast<std::int16_t>(level);
    ZeigeStatus(screen);
    EXPECT_EQ(Counts() + LevelPoints(), shown);
  }
}

TEST_F(Rules, AMoveFollowsTheTableOfTransitions) {
  Press(50);
  Press(50, kRechteTaste);
  EXPECT_EQ(Count(Verdeckt), kZellen) << "before the first game";
  EXPECT_TRUE(screen.modeText.starts_with("Wählen Sie") && screen.sounds.empty());
  constexpr int kGem = 1, kFree = 7;
  const struct {
    Kachel before;
    int cell, button;
    Kachel after;
    int sound;
    bool newText;
  } cases[] = {{Verdeckt, kGem, 1, Sarant, kSoundBlip, true},
               {Verdeckt, kFree, 1, Fehler, kSoundFehler, true},
               {Verdeckt, kGem, 2, Markiert, 0, true},
               {Verdeckt, kFree, 4, Markiert, 0, true},
               {Markiert, kGem, 1, Markiert, 0, false},
               {Markiert, kFree, 1, Markiert, 0, false},
               {Markiert, kGem, 2, Verdeckt, 0, true},
               {Sarant, kGem, 1, Sarant, kSoundBlip, true},
               {Sarant, kGem, 2, Sarant, 0, true},
               {Fehler, kFree, 1, Fehler, kSoundFehler, true},
               {Fehler, kFree, 2, Fehler, 0, true}};
  LayBoard({kGem, 2, 3, 50});
  for (const auto &c : cases) {
    SCOPED_TRACE(&c - cases);
    screen.SetzeKachel(c.cell, c.before);
    screen.modeText = "old";
    screen.sounds.clear();
    Press(c.cell, c.button);
    EXPECT_EQ(screen.LiesKachel(c.cell), c.after);
    EXPECT_EQ(screen.sounds, std::vector<int>(c.sound != kKeinSound, c.sound));
    EXPECT_EQ(screen.modeText, c.newText ? Moduszeile(3) : "old");
    screen.SetzeKachel(c.cell, Verdeckt);
  }
  EXPECT_EQ(spiel.Punkte, kStartpunkte);
}

TEST_F(Rules, TheSecondErrorLosesTheLevel) {
  LayBoard({2, 3, 4});
  for (const int cell : {2, 1, 1})
    Press(cell);
  EXPECT_EQ(Counts(), "[_][1]_2_1");
  EXPECT_EQ(Phase(), "");
  screen.sounds.clear();
  Press(kZellen);
  EXPECT_EQ(Phase(), "repeat 400");
  EXPECT_EQ(screen.sounds, (std::vector{kSoundFehler, kSoundFehler}));
  EXPECT_EQ(screen.modeText, "Klicken Sie auf »Wiederholen«");
  EXPECT_EQ(Counts() + LevelPoints(), "[_][2]_2_1[1][0][0]");
  EXPECT_EQ(spiel.Punkte, 500);
  Press(3);
  Press(60, kRechteTaste);
  EXPECT_EQ(Count(Verdeckt), kZellen - 3);
}

TEST_F(Rules, TheLastGemWinsEvenBesideAnError) {
  const struct {
    std::int16_t mode;
    std::int32_t points;
    const char *shown;
  } cases[] = {{1, 500, "__500400"},
               {2, 99999, "99999450"},
               {3, 0, "_____500"},
               {2, -300, "_____450"},
               {2, 100000, "_____450"}};
  for (const auto &[mode, points, shown] : cases) {
    Restart();
    LayBoard({10, 11});
    spiel.Spielmodus = mode;
    spiel.Punkte = points;
    for (const int cell : {99, 10, 11, 98})  // The last one is dead already.
      Press(cell);
    EXPECT_EQ(screen.LiesKachel(98), Verdeckt);
    EXPECT_EQ(Phase(), "next save 300");
    EXPECT_EQ(screen.sounds.back(), kSoundTada);
    EXPECT_EQ(screen.modeText, "Klicken Sie auf »Nächster Level«");
    EXPECT_EQ(Points() + LevelPoints(), shown);
    EXPECT_EQ(spiel.Punkte, points);
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
      EXPECT_EQ(spiel.Startfelder, start);
      EXPECT_EQ(spiel.Punkte, level == 1 ? 500 : (level - 1) * (mode == kModusExperte ? 350 : 300));
      EXPECT_EQ(FreifelderFuer(level), help[3]);
      ExpectCleanLevel();
      EXPECT_EQ(spiel.SarantenRest, 76 - level - start);
      EXPECT_EQ(screen.sounds, std::vector<int>(static_cast<std::size_t>(start), kSoundBlip));
      EXPECT_EQ(std::accumulate(screen.numbers.begin(), screen.numbers.end(), 0), 2 * (76 - level));
      const auto &list = spiel.lstWiederHolen;
      EXPECT_EQ(list.size(), static_cast<std::size_t>(76 - level));
      for (int cell = 1; cell <= kZellen; ++cell) {
        const bool listed = std::count(list.begin(), list.end(), std::to_string(cell)) == 1;
        EXPECT_EQ(Cell(cell).IstSarant, listed);
        EXPECT_NE(screen.LiesKachel(cell), listed ? Markiert : Sarant);
      }
      WinLevel();
    }
  }
}

TEST_F(Rules, AQuestionComesOnlyWithPointsAndOnlyYesBeginsAnew) {
  imgNeuesSpiel_Click(screen);
  EXPECT_TRUE(screen.messages.empty());
  EXPECT_EQ(Points() + Counts(), "__500[_][0]69_1");
  EXPECT_EQ(screen.timers[Pfeil::Start], 0);
  EXPECT_EQ(screen.arrows[Pfeil::Start], kKeinPfeil);
  EXPECT_FALSE(screen.modeRowVisible);
  EXPECT_EQ(screen.modeColour, Textfarbe::Blau);
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

TEST_F(Rules, ARepeatedLevelKeepsItsBoardAndCostsHundredPoints) {
  imgNeuesSpiel_Click(screen);
  const auto board = spiel.lstWiederHolen;
  const auto numbers = screen.numbers;
  for (int points = 400; points >= -100; points -= 100) {
    LoseLevel();
    NaechsterLevelBlinkt(screen);
    screen.tiles.fill(Fehler);
    cmdWiederholen_Click(screen);
    EXPECT_EQ(spiel.Punkte, points);
    EXPECT_EQ(spiel.lstWiederHolen, board);
    EXPECT_EQ(screen.numbers, numbers);
    EXPECT_EQ(Counts() + LevelPoints(), "[_][0]69_1___");
    ExpectCleanLevel();
  }
  EXPECT_EQ(Points(), "____0");
}

TEST_F(Rules, BehindTheLastLevelTheGameEnds) {
  SpielAbLevelBeginnen(screen, kLetztesLevel - 3, 2);
  spiel.Bestenschwelle = spiel.Punkte + 450;
  for (int level = kLetztesLevel - 2; level <= kLetztesLevel; ++level) {
    EXPECT_EQ(spiel.Level, level);
    ExpectCleanLevel();
    WinLevel();
    imgNextLevel_Click(screen);
    EXPECT_EQ(screen.IstSichtbar(Bedienung::imgBester), level == kLetztesLevel - 1);
  }
  ASSERT_EQ(screen.messages.size(), 2U);
  EXPECT_EQ(screen.messages[1].lblMeldung, MeldungVielenDank.lblMeldung);
  EXPECT_EQ(screen.checksOfBest, 1);
  EXPECT_EQ(spiel.Punkte, 0);
  EXPECT_TRUE(screen.ended);
  EXPECT_EQ(Count(Verdeckt), kZellen);
}

TEST_F(Rules, NumbersStandInTheOrderOfTheWalkFromTheEnd) {
  // Column 3 holds, from the top, runs of 2, 1 and 4, column 10 is full; the rows 1 and 10 hold
  // five gems alone, row 9 runs of 3, 1 and 1.
  LayBoard({1,  3,  5,  7,  13, 33, 63, 73, 10, 20, 30, 40, 50,
            60, 70, 80, 90, 81, 82, 83, 85, 91, 93, 95, 97, 100});
  BerechneZahlen(screen);
  const std::pair<int, std::vector<int>> lines[] = {{11, {4, 1, 2, 0, 0}},  {21, {2, 1, 0, 0, 0}},
                                                    {46, {10, 0, 0, 0, 0}}, {51, {1, 1, 1, 1, 1}},
                                                    {91, {1, 1, 3, 0, 0}},  {96, {1, 1, 1, 1, 1}}};
  for (const auto &[place, numbers] : lines) {
    const auto line = screen.numbers.begin() + place;
    EXPECT_EQ(std::vector(line, line + kPlaetzeJeLinie), numbers) << place;
    for (std::size_t k = 0; k < numbers.size(); ++k)
      EXPECT_EQ(screen.numberVisible.at(static_cast<std::size_t>(place) + k), numbers[k] != 0);
  }
  EXPECT_EQ(spiel.SarantenRest, 26);
  spiel = {};
  BerechneZahlen(screen);
  EXPECT_EQ(std::count(screen.numberVisible.begin(), screen.numberVisible.end(), true), 0);
}

TEST_F(Rules, EachCellHasTheSameChance) {
  std::map<std::pair<int, int>, int> found;  // Of gems, start cells and marks, by cell.
  for (int board = 0; board < 1500; ++board) {
    SpielAbLevelBeginnen(screen, kLetztesLevel - 1, kModusExperte);
    for (int cell = 1; cell <= kZellen; ++cell) {
      found[{36, cell}] += Cell(cell).IstSarant ? 1 : 0;
      found[{5, cell}] += screen.LiesKachel(cell) == Sarant ? 1 : 0;
      found[{12, cell}] += screen.LiesKachel(cell) == Markiert ? 1 : 0;
    }
  }
  for (const auto &[key, count] : found)
    EXPECT_NEAR(count, 15 * key.first, 15 * key.first / 2) << key.first << " " << key.second;
}

TEST_F(Rules, TheRealClockSeedsEachRunOfTheProgram) {
  std::vector<std::string> board;
  for (int run = 0; run < 3; ++run) {
    zufall = {};
    SpielBeginnen(screen);
    EXPECT_NE(spiel.lstWiederHolen, board);
    board = spiel.lstWiederHolen;
  }
}

}  // namespace
