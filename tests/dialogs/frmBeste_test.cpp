#include "dialogs/frmBeste.h"

#include <QLineEdit>

#include "dialogs/zifferreihe.h"
#include "tests/fensterprobe.h"

namespace {

class Bestenfenster : public Fensterprobe {
 protected:
  Bestenfenster() { Starte(); }

  frmBeste &Fenster() { return frmBeste::Fenster(spielfeld.get(), *spielfeld); }

  /// Enters the list with some points, and does something with the open window.
  void TrageEin(std::int32_t punkte, std::function<void(frmBeste &)> handlung) {
    spiel.Punkte = punkte;
    DannAntworte(Qt::Key_J);
    Dann<frmBeste>(handlung);
    spielfeld->BestenlistePruefen();
  }

  QStringList Zeilen() { return QString::fromLatin1(Inhalt(Datei("sarant.txt"))).split("\r\n"); }
  static QString Gezeigt(frmBeste &fenster, int zeile) {
    return fenster.findChildren<Zifferreihe *>().at(zeile)->Gezeigt();
  }
  static QLineEdit *Name(frmBeste &fenster, int zeile) {
    return fenster.findChildren<QLineEdit *>().at(zeile);
  }
};

TEST_F(Bestenfenster, ein_eintrag_steht_an_seinem_platz_und_gleichstand_darunter) {
  const std::pair<std::int32_t, int> faelle[] = {
      {13001, 4}, {14500, 2}, {99999, 0}, {99998, 1}, {15001, 2}};
  for (const auto &[punkte, platz] : faelle) {
    TrageEin(punkte, [&, p = platz, wert = punkte](frmBeste &fenster) {
      EXPECT_EQ(Name(fenster, p)->selectedText(), "Spieler");
      EXPECT_EQ(Gezeigt(fenster, p), QString::number(wert));
      EXPECT_TRUE(Finde(fenster, "lblClear")->isHidden());
      Name(fenster, p)->insert("Käthe €");  // As an input method would; it replaces the selection.
      QTest::keyClick(Name(fenster, p), Qt::Key_Return);
      QTest::keyClick(&fenster, Qt::Key_Escape);
      QTest::keyClick(&fenster, Qt::Key_A, Qt::AltModifier);
      ASSERT_TRUE(fenster.isVisible());
      Klick(Finde(fenster, "cmdEnde"));
    });
    EXPECT_EQ(Zeilen().at(platz), QString::fromLatin1("K\xe4the \x80"));
    EXPECT_EQ(Zeilen().at(platz + 5), QString::number(punkte));
  }
  EXPECT_EQ(spiel.Bestenschwelle, 14500);
  EXPECT_EQ(Zeilen().size(), 11);
}

TEST_F(Bestenfenster, das_schliessfeld_verliert_den_eintrag_und_ein_leerer_name_heisst_spieler) {
  const QByteArray vorher = Inhalt(Datei("sarant.txt"));
  TrageEin(20000, [](frmBeste &fenster) { fenster.close(); });
  EXPECT_EQ(Inhalt(Datei("sarant.txt")), vorher);
  spiel.Punkte = 20000;
  DannAntworte(Qt::Key_N);
  spielfeld->BestenlistePruefen();
  EXPECT_EQ(Inhalt(Datei("sarant.txt")), vorher);
  TrageEin(20000, [](frmBeste &fenster) {
    EXPECT_EQ(Gezeigt(fenster, 1), "15000");
    Name(fenster, 0)->clear();
    Klick(Finde(fenster, "cmdEnde"));
  });
  EXPECT_EQ(Zeilen().first(), "Spieler");
}

TEST_F(Bestenfenster, geschlossene_punkte_werden_abgelehnt) {
  spiel.Punkte = 13000;
  Dann<frmMsgOk>([](frmMsgOk &fenster) {
    EXPECT_EQ(Text(fenster, "lblTitel"), "Mehr Erfolg beim nächsten »Spiel«.");
    fenster.close();
  });
  spielfeld->BestenlistePruefen();
  EXPECT_EQ(gesehen, 1);
}

TEST_F(Bestenfenster, lesend_bleibt_alles_gesperrt_und_das_spiel_spielbar) {
  Fenster().ZeigeZumLesen();
  EXPECT_EQ(Fenster().pos(), spielfeld->frameGeometry().topLeft() - QPoint(7, 7));
  EXPECT_EQ(Fenster().size(), QSize(342, 323));
  EXPECT_EQ(Name(Fenster(), 4)->geometry(), QRect(87, 182, 147, 27));
  EXPECT_EQ(Fenster().findChildren<Zifferreihe *>().at(1)->geometry(), QRect(238, 82, 98, 28));
  EXPECT_TRUE(Finde(Fenster(), "lblClear")->isHidden());
  QTest::keyClicks(Name(Fenster(), 0), "x");
  EXPECT_EQ(Name(Fenster(), 0)->text(), "Niemand");
  Klick("imgNeuesSpiel");
  EXPECT_EQ(spiel.SarantenRest, 69);
  // A new entry takes the window over, and leaves it hidden.
  TrageEin(14999, [](frmBeste &fenster) { Klick(Finde(fenster, "cmdEnde")); });
  EXPECT_TRUE(Fenster().isHidden());
  EXPECT_EQ(Zeilen().at(1), "Spieler");
}

TEST_F(Bestenfenster, wird_nur_mit_ja_geloescht) {
  TrageEin(16000, [](frmBeste &fenster) { Klick(Finde(fenster, "cmdEnde")); });
  const QByteArray voll = Inhalt(Datei("sarant.txt"));
  Fenster().ZeigeZumLesen();
  EXPECT_FALSE(Finde(Fenster(), "lblClear")->isHidden());
  DannAntworte(Qt::Key_N);
  Klick(Finde(Fenster(), "lblClear"));
  EXPECT_EQ(Inhalt(Datei("sarant.txt")), voll);
  EXPECT_TRUE(Fenster().isHidden());

  Fenster().close();  // Unloading brings the access key back.
  Fenster().ZeigeZumLesen();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Fenster()));
  DannAntworte(Qt::Key_J);
  QTest::keyClick(&Fenster(), Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(Inhalt(Datei("sarant.txt")).size(), 80);
  EXPECT_EQ(spiel.Bestenschwelle, 13000);
  Fenster().ZeigeZumLesen();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Fenster()));
  QTest::keyClick(&Fenster(), Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(Fenster().isHidden());
}

TEST_F(Bestenfenster, punkte_stehen_rechtsbuendig_und_null_bleibt_leer) {
  Schreibe(Datei("sarant.txt"), "A\r\nB\r\nC\r\nD\r\nE\r\n1234567\r\n 42\r\nabc\r\n0\r\n7\r\n");
  Fenster().ZeigeZumLesen();
  const char *gezeigt[] = {"1234567", "42", "", "", "7"};
  for (int zeile = 0; zeile < 5; ++zeile)
    EXPECT_EQ(Gezeigt(Fenster(), zeile), gezeigt[zeile]);
  EXPECT_EQ(spiel.Bestenschwelle, 7);
}

}  // namespace
