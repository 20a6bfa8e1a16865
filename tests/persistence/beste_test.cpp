#include "core/befehle.h"
#include "tests/persistence/umgebung.h"

namespace {

class Beste : public Umgebung {
 protected:
  const QByteArray vorgabe =
      "Niemand\r\nNiemand\r\nNiemand\r\nNiemand\r\nNiemand\r\n"
      "15000\r\n14500\r\n14000\r\n13500\r\n13000\r\n";

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

}  // namespace

TEST_F(Beste, VorgabeByteFuerByte) {
  EXPECT_EQ(Inhalt(BestenlistePfad()), vorgabe);
  EXPECT_EQ(vorgabe.size(), 80);
  EXPECT_EQ(spiel.Bestenschwelle, 13000);
}

TEST_F(Beste, Plaetze) {
  const std::pair<std::int32_t, int> faelle[] = {{99999, 0},  {15001, 0}, {15000, 1}, {14500, 2},
                                                 {14001, 2},  {14000, 3}, {13500, 4}, {13001, 4},
                                                 {13000, -1}, {0, -1},    {-100, -1}};
  for (const auto &[punkte, platz] : faelle) {
    Spiele(punkte, kNein);
    EXPECT_EQ(BestenPlatz, platz) << punkte;
    EXPECT_FALSE(BestenEintrag);
    EXPECT_EQ(NeueBestmarke(), platz >= 0);
    ErwarteMeldung(platz >= 0 ? FrageBesteneintrag() : MeldungKeinBesteneintrag());
    EXPECT_EQ(lstPunkte, QStringList({"15000", "14500", "14000", "13500", "13000"}));
  }
  EXPECT_EQ(Inhalt(BestenlistePfad()), vorgabe);
}

TEST_F(Beste, EintragWirdErstMitDemNamenGespeichert) {
  bool gezeigt = false;
  ansicht.beimBesteneintrag = [&] {
    gezeigt = true;
    EXPECT_TRUE(BestenEintrag);
    EXPECT_EQ(lstName.value(1), "Spieler");
    EXPECT_EQ(Inhalt(BestenlistePfad()), vorgabe);
    EXPECT_EQ(spiel.Bestenschwelle, 13000);
  };
  Spiele(14700, kJa);
  ASSERT_TRUE(gezeigt);
  lstName[1] = "Jürgen Groß € Ω";
  BestenlisteSpeichern(ansicht);
  EXPECT_EQ(Inhalt(BestenlistePfad()),
            "Niemand\r\nJ\xFCrgen Gro\xDF \x80 ?\r\nNiemand\r\nNiemand\r\nNiemand\r\n"
            "15000\r\n14700\r\n14500\r\n14000\r\n13500\r\n");
  EXPECT_EQ(spiel.Bestenschwelle, 13500);
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
      {QByteArray(10 << 20, 'x'), 8, 0, 0, 0},
      {QByteArray(100, '\0'), 5, 1, 0, 0},
      {namen + "900\nviele\n700\n600\n500\nmehr", 0, 5, 5, 1},  // Only the last entry is checked.
      {namen + " 900\n800\n700\n600\n500", 0, 5, 5, 4},
  };
  for (const auto &fall : faelle) {
    spiel.Bestenschwelle = 77;
    Lege(BestenlistePfad(), fall.bytes);
    BestenlisteLaden(ansicht);
    if (fall.nummer != 0) {
      ErwarteMeldung(MeldungBesteNichtGelesen(fall.nummer), fall.bytes.left(30));
      EXPECT_EQ(spiel.Bestenschwelle, 77);
    }
    EXPECT_EQ(lstName.size(), fall.namen);
    EXPECT_EQ(lstPunkte.size(), fall.punkte);
    EXPECT_EQ(Inhalt(BestenlistePfad()), fall.bytes);

    Spiele(550, kJa);
    EXPECT_EQ(BestenPlatz, fall.platz) << fall.bytes.left(30).data();
    BestenlisteSpeichern(ansicht);
    ansicht.meldungen.clear();
    BestenlisteLaden(ansicht);
    EXPECT_TRUE(ansicht.meldungen.empty()) << "a saved list can be loaded";
  }
}
