#include <QDir>

#include "persistence/modDateiHandling.h"
#include "tests/persistence/umgebung.h"

namespace {

class Spielstand : public Umgebung {
 protected:
  QString pfad = temporaer.filePath("spiel.sar");

  Spielstand() { SetzeSpiel(7, 2900, 450); }
  static void SetzeSpiel(std::int16_t level, std::int32_t punkte, std::int32_t levelpunkte) {
    spiel.Level = level;
    spiel.Punkte = punkte;
    spiel.Levelpunkte = levelpunkte;
  }
};

}  // namespace

TEST_F(Spielstand, SchreibtByteFuerByte) {
  SpeichereSpielstand(ansicht, pfad);
  EXPECT_EQ(Inhalt(pfad), "7\r\n3350\r\n2\r\n");
  EXPECT_EQ(spiel.Punkte, 2900);
  SetzeSpiel(40, -50, -100);
  SpeichereSpielstand(ansicht, pfad);
  EXPECT_EQ(Inhalt(pfad), "40\r\n-150\r\n2\r\n");
  EXPECT_TRUE(ansicht.meldungen.empty());
}

TEST_F(Spielstand, LaedtAusJederPhaseInEineSaubereSpielphase) {
  Lege(pfad, "12\n4711\n3");
  for (const Bedienung phase :
       {Bedienung::imgBester, Bedienung::imgNextLevel, Bedienung::cmdWiederholen}) {
    ansicht.Zeige(phase, true);
    ansicht.Zeige(Bedienung::imgSpeichern, true);
    ansicht.speichernErlaubt = true;
    ansicht.timer = {{Pfeil::Start, 300}, {Pfeil::Weiter, 400}};
    SetzeSpiel(5, 600, -100);
    ansicht.antworten = {kJa};
    LadeGewaehlteDatei(ansicht, pfad);
    ErwarteMeldung(FrageLaden(13, 3, "4711"));
    EXPECT_EQ(spiel.Level, 13);
    EXPECT_EQ(spiel.Punkte, 4711);
    EXPECT_EQ(spiel.Levelpunkte, 0);
    EXPECT_EQ(spiel.Spielmodus, 3);
    EXPECT_EQ(spiel.SarantenRest, 76 - 13 - spiel.Startfelder);
    for (const Bedienung weg :
         {Bedienung::imgNextLevel, Bedienung::cmdWiederholen, Bedienung::imgSpeichern})
      EXPECT_FALSE(ansicht.IstSichtbar(weg));
    EXPECT_FALSE(ansicht.speichernErlaubt);
    EXPECT_EQ(ansicht.timer[Pfeil::Start] + ansicht.timer[Pfeil::Weiter], 0);
  }
}

TEST_F(Spielstand, VorDemJaBleibtDasSpielWieEsWar) {
  const std::pair<QByteArray, Meldung> faelle[] = {
      {"0\r\n500\r\n1\r\n", FrageLaden(1, 1, "500")},
      {"40\r\n-7\r\n2", FrageLaden(41, 2, "-7")},
      {"41\r\n2147483647\r\n2\r\nmehr", FrageLaden(42, 2, "2147483647")},
      {"3\n\x80\n1", FrageLaden(4, 1, "€")},
      {"7\r\n3350\r\n", MeldungLesefehler(5)},
      {"sieben\r\n3350\r\n2\r\n", MeldungLesefehler(6)},
      {"7\r\n3350\r\nNormal\r\n", MeldungLesefehler(6)},
      {QByteArray("7\0\n3350\n2\n", 10), MeldungLesefehler(6)},
      {"32767\r\n3350\r\n2\r\n", MeldungLesefehler(7)},
      {"-1\r\n3350\r\n2\r\n", MeldungLesefehler(7)},
      {"7\r\n3350\r\n0\r\n", MeldungLesefehler(7)},
      {"7\r\n3350\r\n4\r\n", MeldungLesefehler(7)},
      {QByteArray(10 << 20, '7'), MeldungLesefehler(8)},
  };
  for (const auto &[bytes, meldung] : faelle) {
    Lege(pfad, bytes);
    ansicht.timer = {{Pfeil::Weiter, 300}};
    LadeSpielstand(ansicht, pfad);
    ErwarteMeldung(meldung, bytes.left(20));
    EXPECT_EQ(spiel.Level, 7);
    EXPECT_EQ(spiel.Punkte, 2900);
    EXPECT_EQ(spiel.Levelpunkte, 450);
    EXPECT_EQ(ansicht.timer[Pfeil::Weiter], 300);
  }
}

TEST_F(Spielstand, HinterDemLetztenLevelEndetDasSpiel) {
  Lege(pfad, "32766\r\n500\r\n2\r\n");
  ansicht.antworten = {kJa};
  LadeSpielstand(ansicht, pfad);
  EXPECT_TRUE(ansicht.beendet);
}

TEST_F(Spielstand, PunkteOhneWertScheiternNachDemJa) {
  Lege(pfad, "3\r\n2147483648\r\n1\r\n");
  ansicht.antworten = {kJa};
  LadeSpielstand(ansicht, pfad);
  ansicht.meldungen.erase(ansicht.meldungen.begin());
  ErwarteMeldung(MeldungLesefehler(7));
  EXPECT_EQ(spiel.Level, 3);
  EXPECT_EQ(spiel.Punkte, 2900);
  EXPECT_EQ(spiel.Spielmodus, 2);
}

TEST_F(Spielstand, EndungGiltGenau) {
  EXPECT_EQ(MitEndung("/x/a.sar"), "/x/a.sar");
  EXPECT_EQ(MitEndung("/x/spiel.SAR"), "/x/spiel.SAR.sar");
  LadeGewaehlteDatei(ansicht, "/x/gut.SAR");
  ErwarteMeldung(MeldungFalscherDateityp("gut.SAR"));
}

TEST_F(Spielstand, SucheFragtNurOhneSpielstand) {
  QDir(temporaer.path()).mkdir("ordner.sar");
  for (const std::int16_t antwort : {kNein, kAbgebrochen, kJa}) {
    bool weiter = true;
    ansicht.antworten = {antwort};
    SucheSpielstand(ansicht, weiter);
    EXPECT_EQ(weiter, antwort == kJa);
    ErwarteMeldung(FrageSucheSpielstand());
  }
  Lege(pfad, "");
  bool weiter = true;
  SucheSpielstand(ansicht, weiter);
  EXPECT_TRUE(weiter && ansicht.meldungen.empty());
}
