#include "persistence/iniLumbra.h"
#include "persistence/modDateiHandling.h"
#include "persistence/textdatei.h"
#include "platform/modExistiertDatei.h"
#include "tests/approved.h"
#include "tests/persistence/fixture.h"

using Files = DataFixture;

TEST_F(Files, TheSettingsGiveTheModeAndStayAsTheyAre) {
  using Bytes = QByteArray;
  // clang-format off
  for (const auto &[bytes, told] : {  // A number that is no mode is not shown as the chosen one.
           std::pair(Bytes("1\r\n"), "Einfach told"), {"-1\r\n", "Normal told"}, {"0\r\n", "Normal"},
           {"4\r\n", "Normal"}, {"Experte\r\n", "Normal"}, {"", "Normal"}, {"65539\r\n", "Normal"},
           {Bytes("3\0", 2), "Normal"}, {"3\nmehr", "Experte told"}}) {
    // clang-format on
    WriteFile(IniPfad(), bytes);
    spiel.Spielmodus = 1;
    screen.SetzeModustext("");
    LeseIni(screen);
    const std::string &mode = ModusName(spiel.Spielmodus);
    EXPECT_EQ(mode + (screen.shown["text"].find(mode) == 14 ? " told" : ""), told) << bytes.data();
    EXPECT_EQ(ReadFile(IniPfad()), bytes);
  }
  SchreibeIni();
  EXPECT_EQ(ReadFile(IniPfad()), "3\r\n");
}

TEST_F(Files, OnlyAReadableGameIsAskedForAndOnlyAYesLoadsIt) {
  std::tie(spiel.Level, spiel.Punkte, spiel.Levelpunkte) = std::tuple(7, 2900, 450);
  bool found = true;
  SucheSpielstand(screen, found);
  EXPECT_FALSE(std::exchange(found, true));
  ExpectMessage("Möchten Sie selbst");
  SpeichereSpielstand(screen, path);
  SucheSpielstand(screen, found);
  ExpectMessage("");
  EXPECT_TRUE(found);
  EXPECT_EQ(ReadFile(path), "7\r\n3350\r\n2\r\n");
  const std::string question = "»Spiel starten« bestätigen (Spielstart in Level:   ",
                    noNumber = "Fehlernummer: 6", tooLarge = "Fehlernummer: 7";
  // clang-format off
  for (const auto &[bytes, message] : {
           std::pair(" 000 \r\n500\r\n1\r\n", question + "1/Spielmodus:  Einfach/Punkte:  500)"),
           {"41\r\n2147483647\r\n2\r\nmehr", question + "42/Spielmodus:  Normal/Punkte:  2147483647)"},
           {"3\n\x80\n1", question + "4/Spielmodus:  Einfach/Punkte:  €)"}, {"7\r\n3350\r\n", "Fehlernummer: 5"},
           {"sieben\n1\n2\n", noNumber}, {"7\n1\nNormal\n", noNumber}, {" \n1\n2\n", noNumber},
           {"-\n1\n2\n", noNumber}, {"1 2\n1\n2\n", noNumber}, {"99999999999999999999x\n1\n2\n", noNumber},
           {"32767\n1\n2\n", tooLarge}, {"99999999999999999999\n1\n2\n", tooLarge},
           {"-1\n1\n2\n", tooLarge}, {"7\n1\n0\n", tooLarge}, {"7\n1\n4\n", tooLarge}}) {
    // clang-format on
    WriteFile(path, bytes);
    LadeSpielstand(screen, path);
    ExpectMessage(message);
    EXPECT_EQ(spiel.Level, 7);
  }
}

TEST_F(Files, AYesLoadsTheGame) {
  Transcript told;
  screen.StartePfeil(Pfeil::Weiter, 300);
  screen.Zeige(Bedienung::imgNextLevel, true);
  // In the first level no start cell writes over the text; the next points have no value.
  for (const char *bytes : {"3\n4711\n3", "7\r\n2147483648\r\n1\r\n", "32766\r\n500\r\n2\r\n"}) {
    WriteFile(path, bytes);
    screen.answers = {kJa};
    LadeGewaehlteDatei(screen, path);
    told << QString(bytes).simplified() << screen.Tell();
  }
}

TEST_F(Files, AnAcceptedPlaceIsAnEntryEvenInADamagedList) {
  const QByteArray names = "A\nB\nC\nD\nE\n", four = names + "900\n800\n700\n600\n";
  // The points of the player, the error in the list, the list with the player in it. Of a list that
  // is whole only the last points are checked.
  for (const auto &[bytes, points, error, list] :
       {std::tuple(QByteArray(), 550, "5", "Spieler Niemand Niemand Niemand Niemand 550 0 0 0 0"),
        {"A\nB", 550, "5", "Spieler A B Niemand Niemand 550 0 0 0 0"},
        {four, 600, "5", "A B C D Spieler 900 800 700 600 600"},
        {four + "letzter", 601, "6", "A B C Spieler D 900 800 700 601 600"},
        {four + "2147483648", 99999, "7", "Spieler A B C D 99999 900 800 700 600"},
        {four + " 550", 551, "", "A B C D Spieler 900 800 700 600 551"},
        {names + "900\nviele\n700\n600\n500\nmehr", 550, "",
         "A Spieler B C D 900 550 0 700 600"}}) {
    SCOPED_TRACE(bytes.data());
    WriteFile(BestenlistePfad(), bytes);
    spiel.Bestenschwelle = 77;
    BestenlisteLaden(screen);
    ExpectMessage(*error ? "Fehlernummer: " + std::string(error) : "");
    EXPECT_EQ(spiel.Bestenschwelle, *error ? 77 : bytes.right(4) == " 550" ? 550 : 500);
    spiel.Punkte = points;
    for (const std::int16_t answer : {kNein, kJa}) {
      screen.answers = {answer};
      BestenlistePruefen(screen);
      EXPECT_EQ(spiel.Beste.BestenEintrag, answer == kJa);
    }
    ExpectMessage("Möchten Sie sich");
    EXPECT_EQ(ReadFile(BestenlistePfad()), bytes);
    BestenlisteSpeichern(screen);
    EXPECT_EQ(ReadFile(BestenlistePfad()).simplified(), list);
    EXPECT_EQ(QString::number(spiel.Bestenschwelle), QString(list).section(' ', -1));
    spiel.Punkte = 0;
    BestenlistePruefen(screen);
    ExpectMessage("Mehr Erfolg");
    EXPECT_FALSE(spiel.Beste.BestenEintrag);
  }
}

TEST_F(Files, OnlyAMissingNameInAnExistingFolderIsMissing) {
  WriteFile(path, "");
  for (const char *name : {"", "/spiel.sar", "/fehlt/datei", "/spiel.sar/x"})
    EXPECT_TRUE(ExistiertDatei(folder.path() + name)) << name;
  EXPECT_FALSE(ExistiertDatei(folder.path() + "/fehlt") || ExistiertDatei(""));
}

TEST_F(Files, LineEnds) {
  const QByteArray longest(kLaengsteZeile, 'x');
  // clang-format off
  for (const auto &[bytes, told] : {
           std::pair(QByteArray("a\r\nb\r\nc"), "0 a|b"), {"a\rb\n", "0 a|b"}, {"\r\n\n", "0 |"},
           {"\n\r", "0 |"}, {"a\r\n", "5 a"}, {QByteArray("\0\n\0", 3), "0 0|0"},
           {"a\n" + longest, "0 a|65536"}, {"a\n" + longest + "x", "8 a"}}) {
    // clang-format on
    WriteFile(path, bytes);
    const Textzeilen read = LiesZeilen(path, 2);
    const QString lines =
        read.Zeilen.join('|').replace(QString(longest), "65536").replace(QChar(0), u'0');
    EXPECT_EQ(QString::number(static_cast<int>(read.Fehler)) + " " + lines, told);
  }
}

TEST_F(Files, TheCodePageKeepsEachByte) {
  QByteArray all;
  for (int byte = 0; byte < 256; ++byte)
    all.append(static_cast<char>(byte));
  all.replace("\n", "").replace("\r", "");
  WriteFile(path, all);
  const QStringList read = LiesZeilen(path, 1).Zeilen;
  EXPECT_EQ(read[0].mid(126, 32), "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ");
  SchreibeZeilen(path, read);
  EXPECT_EQ(ReadFile(path), all + "\r\n");
  EXPECT_EQ(Speicherbar("Ju\u0308rg €\U0001F600 Ł\r\n?"), "Jürg € ?");
  SchreibeZeilen(path, {"Jörg € »ß« 😀 Ł", "a\r\nb", ""});
  EXPECT_EQ(ReadFile(path), "J\xF6rg \x80 \xBB\xDF\xAB ? ?\r\na??b\r\n\r\n");
}
