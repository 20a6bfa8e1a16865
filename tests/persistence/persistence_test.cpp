#include <map>

#include "core/befehle.h"
#include "persistence/iniLumbra.h"
#include "persistence/modDateiHandling.h"
#include "tests/persistence/fixture.h"

TEST_F(DataFixture, LiestDenModusUndLaesstDieDateiStehen) {
  const std::map<std::pair<int, bool>, std::vector<QByteArray>> faelle = {
      {{1, true}, {"1\r\n"}},
      {{2, true}, {"-1\r\n"}},
      {{2, false}, {"0\r\n", "4\r\n", "Experte\r\n", "", "65539\r\n", QByteArray("3\0", 2)}},
      {{3, true}, {"3\nmehr"}}};
  for (const auto &[ergebnis, dateien] : faelle) {
    for (const QByteArray &bytes : dateien) {
      WriteFile(IniPfad(), bytes);
      spiel.Spielmodus = 1;
      ansicht.modustext.clear();
      LeseIni(ansicht);
      EXPECT_EQ(spiel.Spielmodus, ergebnis.first) << bytes.left(20).data();
      EXPECT_EQ(ansicht.modustext, ergebnis.second ? Moduszeile(3) : "") << bytes.left(20).data();
      EXPECT_EQ(ReadFile(IniPfad()), bytes);
    }
    SchreibeIni();
    EXPECT_EQ(ReadFile(IniPfad()), QByteArray::number(ergebnis.first) + "\r\n");
  }
}

class Spielstand : public DataFixture {
 protected:
  QString pfad = folder.filePath("spiel.sar");

  Spielstand() {
    spiel.Level = 7;
    spiel.Punkte = 2900;
    spiel.Levelpunkte = 450;
  }
};

TEST_F(Spielstand, SchreibtByteFuerByteUndLaedtInEineSaubereSpielphase) {
  SpeichereSpielstand(ansicht, pfad);
  EXPECT_EQ(ReadFile(pfad), "7\r\n3350\r\n2\r\n");
  ExpectGame(7, 2900, 450, 2);
  WriteFile(pfad, "3\n4711\n3");  // In this level no start cell writes over the text.
  for (const Bedienung b :
       {Bedienung::imgNextLevel, Bedienung::cmdWiederholen, Bedienung::imgSpeichern})
    ansicht.Zeige(b, true);
  ansicht.speichernErlaubt = true;
  ansicht.timer = {{Pfeil::Start, 300}, {Pfeil::Weiter, 400}};
  ansicht.antworten = {kJa};
  LadeGewaehlteDatei(ansicht, pfad);
  ExpectMessage(FrageLaden(4, 3, "4711"));
  ExpectGame(4, 4711, 0, 3);
  EXPECT_EQ(spiel.SarantenRest, 72);
  EXPECT_TRUE(ansicht.modustext.starts_with("Spielmodus:  Experte"));
  for (const auto &[bedienung, sichtbar] : ansicht.sichtbar)
    EXPECT_FALSE(sichtbar);
  EXPECT_FALSE(ansicht.speichernErlaubt);
  EXPECT_EQ(ansicht.timer[Pfeil::Start] + ansicht.timer[Pfeil::Weiter], 0);
}

TEST_F(Spielstand, VorDemJaBleibtDasSpielWieEsWar) {
  const auto Pruefe = [&](const QByteArray &bytes, const Meldung &meldung) {
    WriteFile(pfad, bytes);
    ansicht.timer = {{Pfeil::Weiter, 300}};
    LadeSpielstand(ansicht, pfad);
    ExpectMessage(meldung, bytes.left(20));
    ExpectGame(7, 2900, 450, 2);
    EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 300);
  };
  Pruefe(" 000 \r\n500\r\n1\r\n", FrageLaden(1, 1, "500"));
  Pruefe("40\r\n-7\r\n2", FrageLaden(41, 2, "-7"));
  Pruefe("41\r\n2147483647\r\n2\r\nmehr", FrageLaden(42, 2, "2147483647"));
  Pruefe("3\n\x80\n1", FrageLaden(4, 1, "€"));
  const std::map<int, std::vector<QByteArray>> fehler = {
      {5, {"7\r\n3350\r\n"}},
      {6,
       {"sieben\r\n1\r\n2\r\n", "7\r\n1\r\nNormal\r\n", QByteArray("7\0\n3350\n2\n", 10),
        " \n1\n2\n", "-\n1\n2\n", "1 2\n1\n2\n", "99999999999999999999x\n1\n2\n"}},
      {7,
       {"32767\n1\n2\n", "99999999999999999999\n1\n2\n", "-1\n1\n2\n", "7\n1\n0\n", "7\n1\n4\n"}}};
  for (const auto &[nummer, dateien] : fehler) {
    for (const QByteArray &bytes : dateien)
      Pruefe(bytes, MeldungLesefehler(nummer));
  }
}

TEST_F(Spielstand, NachDemJaEndetDasSpielOderScheitertAnPunktenOhneWert) {
  WriteFile(pfad, "3\r\n2147483648\r\n1\r\n");
  ansicht.antworten = {kJa, kJa};
  LadeSpielstand(ansicht, pfad);
  ansicht.meldungen.erase(ansicht.meldungen.begin());
  ExpectMessage(MeldungLesefehler(7));
  ExpectGame(3, 2900, 450, 2);
  WriteFile(pfad, "32766\r\n500\r\n2\r\n");
  LadeSpielstand(ansicht, pfad);
  EXPECT_TRUE(ansicht.beendet);
}

class Beste : public DataFixture {
 protected:
  Beste() {
    BestenlisteAnlegen();
    BestenlisteLaden(ansicht);
  }
  void Spiele(std::int32_t punkte, std::int16_t antwort) {
    spiel.Punkte = punkte;
    ansicht.antworten = {antwort};
    BestenlistePruefen(ansicht);
  }
};

TEST_F(Beste, NurEinAngenommenerPlatzIstEinEintrag) {
  Spiele(13000, kJa);
  ExpectMessage(MeldungKeinBesteneintrag());
  Spiele(13001, kNein);
  ExpectMessage(FrageBesteneintrag());
  EXPECT_EQ(spiel.Beste.BestenPlatz, 4);
  EXPECT_FALSE(spiel.Beste.BestenEintrag);
}

TEST_F(Beste, BeschaedigteDateiBleibtUndLaesstWeiterspielen) {
  const QByteArray namen = "A\nB\nC\nD\nE\n";
  const struct {
    QByteArray bytes;
    int nummer, namen, punkte, platz;
  } faelle[] = {
      {"", 5, 0, 0, 0},
      {"A\nB", 5, 2, 0, 0},
      {namen + "900\n800\n700\n600\n", 5, 5, 4, 4},
      {namen + "900\n800\n700\n600\nletzter", 6, 5, 5, 4},
      {namen + "900\n800\n700\n600\n2147483648", 7, 5, 5, 4},
      {namen + "900\nviele\n700\n600\n500\nmehr", 0, 5, 5, 1},  // Only the last entry is checked.
      {namen + " 900\n800\n700\n600\n500", 0, 5, 5, 4},
  };
  for (const auto &fall : faelle) {
    spiel.Bestenschwelle = 77;
    WriteFile(BestenlistePfad(), fall.bytes);
    BestenlisteLaden(ansicht);
    if (fall.nummer != 0) {
      ExpectMessage(MeldungBesteNichtGelesen(fall.nummer), fall.bytes.left(30));
      EXPECT_EQ(spiel.Bestenschwelle, 77);
    }
    EXPECT_EQ(static_cast<int>(spiel.Beste.lstName.size()), fall.namen);
    EXPECT_EQ(static_cast<int>(spiel.Beste.lstPunkte.size()), fall.punkte);
    EXPECT_EQ(ReadFile(BestenlistePfad()), fall.bytes);
    Spiele(550, kJa);
    EXPECT_EQ(spiel.Beste.BestenPlatz, fall.platz) << fall.bytes.left(30).data();
    BestenlisteSpeichern(ansicht);
    ansicht.meldungen.clear();
    BestenlisteLaden(ansicht);
    EXPECT_TRUE(ansicht.meldungen.empty()) << "a saved list can be loaded";
    EXPECT_TRUE(!fall.bytes.contains("viele") || spiel.Beste.lstPunkte[2] == "0");
  }
}
