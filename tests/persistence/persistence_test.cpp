#include <map>
#include <tuple>

#include "persistence/iniLumbra.h"
#include "persistence/modDateiHandling.h"
#include "persistence/textdatei.h"
#include "platform/modExistiertDatei.h"
#include "tests/persistence/fixture.h"

using Settings = DataFixture;

TEST_F(Settings, GiveTheModeAndStayAsTheyAre) {
  const std::map<QByteArray, int> cases = {
      // Negative: the text of the mode is not shown.
      {"1\r\n", 1},        {"-1\r\n", 2}, {"0\r\n", -2},     {"4\r\n", -2},
      {"Experte\r\n", -2}, {"", -2},      {"65539\r\n", -2}, {QByteArray("3\0", 2), -2},
      {"3\nmehr", 3}};
  for (const auto &[bytes, result] : cases) {
    WriteFile(IniPfad(), bytes);
    spiel.Spielmodus = 1;
    screen.modeText.clear();
    LeseIni(screen);
    EXPECT_EQ(spiel.Spielmodus, std::abs(result)) << bytes.data();
    EXPECT_EQ(screen.modeText, result > 0 ? Moduszeile(3) : "") << bytes.data();
    EXPECT_EQ(ReadFile(IniPfad()), bytes);
    SchreibeIni();
    EXPECT_EQ(ReadFile(IniPfad()), QByteArray::number(spiel.Spielmodus) + "\r\n");
  }
}

/// Level, points, level points and mode.
static std::vector<int> Game() {
  return {spiel.Level, spiel.Punkte, spiel.Levelpunkte, spiel.Spielmodus};
}
static const std::vector kGame{7, 2900, 450, 2};

class SavedGame : public DataFixture {
 protected:
  SavedGame() { std::tie(spiel.Level, spiel.Punkte, spiel.Levelpunkte) = std::tuple(7, 2900, 450); }
};

TEST_F(SavedGame, IsWrittenByteByByteAndLoadedIntoACleanLevel) {
  bool found = true;
  SucheSpielstand(screen, found);
  ExpectMessage(FrageSucheSpielstand());
  EXPECT_FALSE(found);
  SpeichereSpielstand(screen, path);
  SucheSpielstand(screen, found);
  EXPECT_EQ(ReadFile(path), "7\r\n3350\r\n2\r\n");
  EXPECT_EQ(Game(), kGame);
  WriteFile(path, "3\n4711\n3");  // In this level no start cell writes over the text.
  screen.visible[Bedienung::imgNextLevel] = true;
  screen.timers = {{Pfeil::Start, 300}, {Pfeil::Weiter, 400}};
  screen.answers = {kJa};
  LadeGewaehlteDatei(screen, path);
  ExpectMessage(FrageLaden(4, 3, "4711"));
  EXPECT_EQ(Game(), (std::vector{4, 4711, 0, 3}));
  EXPECT_EQ(spiel.SarantenRest, 72);
  EXPECT_TRUE(screen.modeText.starts_with("Spielmodus:  Experte"));
  EXPECT_FALSE(screen.IstSichtbar(Bedienung::imgNextLevel));
  EXPECT_EQ(screen.timers[Pfeil::Start] + screen.timers[Pfeil::Weiter], 0);
}

TEST_F(SavedGame, BeforeTheYesTheRunningGameStays) {
  const auto check = [&](const QByteArray &bytes, const Meldung &message) {
    WriteFile(path, bytes);
    screen.timers = {{Pfeil::Weiter, 300}};
    LadeSpielstand(screen, path);
    ExpectMessage(message, bytes.left(20));
    EXPECT_EQ(Game(), kGame);
    EXPECT_EQ(screen.timers[Pfeil::Weiter], 300);
  };
  check(" 000 \r\n500\r\n1\r\n", FrageLaden(1, 1, "500"));
  check("41\r\n2147483647\r\n2\r\nmehr", FrageLaden(42, 2, "2147483647"));
  check("3\n\x80\n1", FrageLaden(4, 1, "€"));
  check("7\r\n3350\r\n", MeldungLesefehler(5));
  for (const char *text : {"sieben\n1\n2\n", "7\n1\nNormal\n", " \n1\n2\n", "-\n1\n2\n",
                           "1 2\n1\n2\n", "99999999999999999999x\n1\n2\n"})
    check(text, MeldungLesefehler(6));
  for (const char *range :
       {"32767\n1\n2\n", "99999999999999999999\n1\n2\n", "-1\n1\n2\n", "7\n1\n0\n", "7\n1\n4\n"})
    check(range, MeldungLesefehler(7));
}

TEST_F(SavedGame, AfterTheYesTheGameEndsOrFailsByPointsWithoutAValue) {
  WriteFile(path, "3\r\n2147483648\r\n1\r\n");
  screen.answers = {kJa, kJa};
  LadeSpielstand(screen, path);
  screen.messages.erase(screen.messages.begin());
  ExpectMessage(MeldungLesefehler(7));
  EXPECT_EQ(Game(), (std::vector{3, 2900, 450, 2}));
  WriteFile(path, "32766\r\n500\r\n2\r\n");
  LadeSpielstand(screen, path);
  EXPECT_TRUE(screen.ended);
}

using BestList = DataFixture;

TEST_F(BestList, AnAcceptedPlaceIsAnEntryEvenInADamagedFile) {
  const QByteArray names = "A\nB\nC\nD\nE\n", four = names + "900\n800\n700\n600\n";
  const struct {
    QByteArray bytes;
    int error, points;
    const char *saved;
  } cases[] = {
      {"", 5, 550, "Spieler Niemand Niemand Niemand Niemand 550 0 0 0 0"},
      {"A\nB", 5, 550, "Spieler A B Niemand Niemand 550 0 0 0 0"},
      {four, 5, 600, "A B C D Spieler 900 800 700 600 600"},
      {four + "letzter", 6, 601, "A B C Spieler D 900 800 700 601 600"},
      {four + "2147483648", 7, 99999, "Spieler A B C D 99999 900 800 700 600"},
      {four + " 550", 0, 551, "A B C D Spieler 900 800 700 600 551"},
      // Only the last points are checked.
      {names + "900\nviele\n700\n600\n500\nmehr", 0, 550, "A Spieler B C D 900 550 0 700 600"}};
  for (const auto &c : cases) {
    SCOPED_TRACE(c.bytes.data());
    const int before = spiel.Bestenschwelle = 77;
    WriteFile(BestenlistePfad(), c.bytes);
    BestenlisteLaden(screen);
    if (c.error != 0)
      ExpectMessage(MeldungBesteNichtGelesen(c.error));
    EXPECT_EQ(spiel.Bestenschwelle == before, c.error != 0);
    spiel.Punkte = c.points;
    screen.answers = {kNein, kJa};
    BestenlistePruefen(screen);
    EXPECT_FALSE(spiel.Beste.BestenEintrag);
    BestenlistePruefen(screen);
    EXPECT_TRUE(spiel.Beste.BestenEintrag);
    EXPECT_EQ(ReadFile(BestenlistePfad()), c.bytes);
    BestenlisteSpeichern(screen);
    EXPECT_EQ(ReadFile(BestenlistePfad()).simplified(), c.saved);
    EXPECT_EQ(std::to_string(spiel.Bestenschwelle), spiel.Beste.lstPunkte.back());
    screen.messages.clear();
    spiel.Punkte = 0;
    BestenlistePruefen(screen);
    ExpectMessage(MeldungKeinBesteneintrag);
    EXPECT_FALSE(spiel.Beste.BestenEintrag);
  }
}

using TextFile = DataFixture;

TEST_F(TextFile, OnlyAMissingNameInAnExistingFolderIsMissing) {
  WriteFile(path, "");
  for (const char *name : {"", "/spiel.sar", "/fehlt/datei", "/spiel.sar/x", "/fehlt"})
    EXPECT_EQ(ExistiertDatei(folder.path() + name), name != std::string("/fehlt")) << name;
  EXPECT_FALSE(ExistiertDatei(""));
}

TEST_F(TextFile, LineEnds) {
  const struct {
    QByteArray bytes;
    QStringList lines;
    Dateifehler error = Dateifehler::Keiner;
  } cases[] = {
      {"a\r\nb\r\nc", {"a", "b"}},
      {"a\rb\n", {"a", "b"}},
      {"\r\n\n", {"", ""}},
      {"\n\r", {"", ""}},
      {"a\r\n", {"a"}, Dateifehler::Dateiende},
      {QByteArray("\0\n\0", 3), {QChar(0), QChar(0)}},
      {"a\n" + QByteArray(kLaengsteZeile, 'x'), {"a", QString(kLaengsteZeile, 'x')}},
      {"a\n" + QByteArray(10 << 20, 'x'), {"a"}, Dateifehler::Anderer},
  };
  for (const auto &[bytes, lines, error] : cases) {
    WriteFile(path, bytes);
    const Textzeilen read = LiesZeilen(path, 2);
    EXPECT_TRUE(read.Zeilen == lines && read.Fehler == error) << bytes.left(20).data();
  }
}

TEST_F(TextFile, TheCodePageKeepsEachByte) {
  QByteArray all;
  for (int byte = 0; byte < 256; ++byte)
    all.append(static_cast<char>(byte));
  all.replace("\n", "").replace("\r", "");
  WriteFile(path, all);
  SchreibeZeilen(path, LiesZeilen(path, 1).Zeilen);
  EXPECT_EQ(ReadFile(path), all + "\r\n");
  EXPECT_EQ(Speicherbar("Ju\u0308rg €\U0001F600 Ł\r\n?"), "Jürg € ?");
  SchreibeZeilen(path, {"Jörg € »ß« 😀 Ł", "a\r\nb", ""});
  EXPECT_EQ(ReadFile(path), "J\xF6rg \x80 \xBB\xDF\xAB ? ?\r\na??b\r\n\r\n");
}
