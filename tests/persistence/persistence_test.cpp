#include "persistence/iniLumbra.h"
#include "persistence/modDateiHandling.h"
#include "persistence/textdatei.h"
#include "platform/modExistiertDatei.h"
#include "tests/persistence/fixture.h"

using Files = DataFixture;

TEST_F(Files, TheSettingsGiveTheModeAndStayAsTheyAre) {
  for (const QByteArray &bytes :
       {QByteArray("1\r\n"), QByteArray("-1\r\n"), QByteArray("0\r\n"), QByteArray("4\r\n"),
        QByteArray("Experte\r\n"), QByteArray(), QByteArray("65539\r\n"), QByteArray("3\0", 2),
        QByteArray("3\nmehr")}) {
    WriteFile(IniPfad(), bytes);
    spiel.Spielmodus = 1;
    screen.SetzeModustext("old");
    screen.Tell();
    LeseIni(screen);
    Tell(bytes);
    EXPECT_EQ(ReadFile(IniPfad()), bytes);
  }
  SchreibeIni();
  Tell(ReadFile(IniPfad()));
}

TEST_F(Files, OnlyAReadableGameIsAskedForAndOnlyAYesLoadsIt) {
  std::tie(spiel.Level, spiel.Punkte, spiel.Levelpunkte) = std::tuple(7, 2900, 450);
  bool found = true;
  SucheSpielstand(screen, found);
  Tell("no game");
  SpeichereSpielstand(screen, path);
  SucheSpielstand(screen, found);
  EXPECT_FALSE(found);
  Tell(ReadFile(path));
  screen.StartePfeil(Pfeil::Weiter, 300);
  for (const char *bytes :
       {" 000 \r\n500\r\n1\r\n", "41\r\n2147483647\r\n2\r\nmehr", "3\n\x80\n1", "7\r\n3350\r\n",
        "sieben\n1\n2\n", "7\n1\nNormal\n", " \n1\n2\n", "-\n1\n2\n", "1 2\n1\n2\n",
        "99999999999999999999x\n1\n2\n", "32767\n1\n2\n", "99999999999999999999\n1\n2\n",
        "-1\n1\n2\n", "7\n1\n0\n", "7\n1\n4\n"}) {
    WriteFile(path, bytes);
    LadeSpielstand(screen, path);
    Tell(bytes);
  }
  screen.Zeige(Bedienung::imgNextLevel, true);
  told << "With a yes:\n";
  // In the first level no start cell writes over the text; the next points have no value.
  for (const char *bytes : {"3\n4711\n3", "7\r\n2147483648\r\n1\r\n", "32766\r\n500\r\n2\r\n"}) {
    WriteFile(path, bytes);
    screen.answers = {kJa};
    LadeGewaehlteDatei(screen, path);
    Tell(bytes);
  }
}

TEST_F(Files, AnAcceptedPlaceIsAnEntryEvenInADamagedList) {
  const QByteArray names = "A\nB\nC\nD\nE\n", four = names + "900\n800\n700\n600\n";
  // Of a list that is whole only the last points are checked.
  for (const auto &[bytes, points] : {std::pair(QByteArray(), 550),
                                      {"A\nB", 550},
                                      {four, 600},
                                      {four + "letzter", 601},
                                      {four + "2147483648", 99999},
                                      {four + " 550", 551},
                                      {names + "900\nviele\n700\n600\n500\nmehr", 550}}) {
    WriteFile(BestenlistePfad(), bytes);
    spiel.Bestenschwelle = 77;
    BestenlisteLaden(screen);
    Tell(bytes);
    told << "  threshold " << spiel.Bestenschwelle;
    spiel.Punkte = points;
    for (const std::int16_t answer : {kNein, kJa}) {
      screen.answers = {answer};
      BestenlistePruefen(screen);
      told << ", entry " << spiel.Beste.BestenEintrag;
    }
    EXPECT_EQ(ReadFile(BestenlistePfad()), bytes);
    BestenlisteSpeichern(screen);
    Tell(" " + ReadFile(BestenlistePfad()).simplified());
    told << "  threshold " << spiel.Bestenschwelle;
    spiel.Punkte = 0;
    BestenlistePruefen(screen);
    told << ", entry " << spiel.Beste.BestenEintrag;
    Tell("");
  }
}

TEST_F(Files, OnlyAMissingNameInAnExistingFolderIsMissing) {
  WriteFile(path, "");
  for (const char *name : {"", "/spiel.sar", "/fehlt/datei", "/spiel.sar/x", "/fehlt"})
    told << name << " " << ExistiertDatei(folder.path() + name) << "\n";
  EXPECT_FALSE(ExistiertDatei(""));
}

TEST_F(Files, LineEnds) {
  for (const QByteArray &bytes :
       {QByteArray("a\r\nb\r\nc"), QByteArray("a\rb\n"), QByteArray("\r\n\n"), QByteArray("\n\r"),
        QByteArray("a\r\n"), QByteArray("\0\n\0", 3), "a\n" + QByteArray(kLaengsteZeile, 'x'),
        "a\n" + QByteArray(kLaengsteZeile + 1, 'x')}) {
    WriteFile(path, bytes);
    const Textzeilen read = LiesZeilen(path, 2);
    told << "error " << static_cast<int>(read.Fehler) << ", lines";
    for (const QString &line : read.Zeilen)
      told << " [" << line.left(9).toUtf8().toPercentEncoding().data() << "] " << line.size();
    told << " in ";
    Tell(bytes);
  }
}

TEST_F(Files, TheCodePageKeepsEachByte) {
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
