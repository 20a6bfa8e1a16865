#include <QLineEdit>

#include "dialogs/frmBeste.h"
#include "dialogs/frmOptionen.h"
#include "dialogs/zifferreihe.h"
#include "tests/fensterprobe.h"

namespace {

using Meldungen = Fensterprobe;

TEST_F(Meldungen, jede_taste_und_jeder_knopf_gibt_seine_antwort) {
  // A key by itself, a hot spot by its name; "close" is a close by the platform.
  const std::pair<const char *, std::int16_t> faelle[] = {{"J", kJa},
                                                          {"Shift+J", kJa},
                                                          {"N", kNein},
                                                          {"Esc", kAbgebrochen},
                                                          {"lblJa", kJa},
                                                          {"lblNein", kNein},
                                                          {"Image1", kAbgebrochen},
                                                          {"close", kAbgebrochen}};
  for (const auto &[weg, antwort] : faelle) {
    Dann<frmMsgJa>([was = QString(weg)](frmMsgJa &fenster) {
      // None of these has a function, and a release elsewhere is no click.
      for (const Qt::Key taste : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F1, Qt::Key_Space})
        QTest::keyClick(&fenster, taste);
      QTest::mousePress(Finde(fenster, "lblJa"), Qt::LeftButton);
      QTest::mouseRelease(Finde(fenster, "lblJa"), Qt::LeftButton, {}, QPoint(-50, 0));
      ASSERT_TRUE(fenster.isVisible());
      if (was == "close")
        fenster.close();
      else if (was.startsWith("lbl") || was == "Image1")
        Klick(Finde(fenster, was));
      else
        Druecke(fenster, was);
    });
    spiel.Antwort = kJa;
    EXPECT_EQ(spielfeld->Frage(FrageBeenden()), antwort == kJa) << weg;
    EXPECT_EQ(spiel.Antwort, antwort) << weg;
  }
}

TEST_F(Meldungen, stehen_auf_den_pixel_und_an_ihrem_ort) {
  const QRect haupt = spielfeld->frameGeometry();
  Dann<frmMsgJa>([&](frmMsgJa &fenster) {
    EXPECT_EQ(fenster.size(), QSize(392, 236));
    EXPECT_EQ(fenster.pos(), haupt.topLeft() + QPoint((haupt.width() - fenster.width()) / 2,
                                                      (haupt.height() - fenster.height()) / 2));
    ErwarteLagen(fenster, {{"lblName", {62, 12, 261, 21}},
                           {"Image1", {364, 4, 21, 21}},
                           {"lblMeldung", {8, 2, 365, 55}},
                           {"lblTitel", {4, 60, 367, 69}},
                           {"lblNein", {32, 194, 147, 25}},
                           {"lblJa", {222, 192, 145, 29}}});
    EXPECT_EQ(Text(fenster, "lblName"), "Glanzgrube  Vers.: 3.2.0");
    EXPECT_EQ(Finde(fenster, "lblNein")->toolTip(), "Fenster schließen ohne Bestätigung");
    EXPECT_EQ(Finde(fenster, "lblJa")->cursor().hotSpot(), QPoint(5, 0));
    fenster.close();
  });
  spielfeld->Frage(FrageNeuesSpiel());
  Dann<frmMsgOk>([&](frmMsgOk &fenster) {
    EXPECT_EQ(fenster.size(), QSize(387, 228));
    EXPECT_EQ(fenster.pos(), haupt.topLeft() + QPoint(7, 7));
    ErwarteLagen(fenster, {{"lblOk", {120, 194, 145, 27}}});
    fenster.close();
  });
  spielfeld->Melde(MeldungVielenDank());
  Dann<frmMsgJa>([&](frmMsgJa &fenster) {
    EXPECT_EQ(fenster.pos(), haupt.topLeft() - QPoint(7, 7));
    // The arrow of the main window goes on blinking.
    const QPixmap *vorher = Finde(*spielfeld, "imgZeigeStart")->GezeigtesBild();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Finde(*spielfeld, "imgZeigeStart")->GezeigtesBild() != vorher; }, 2000));
    fenster.close();
  });
  spielfeld->Frage(FrageSucheSpielstand());
}

class Optionen : public Fensterprobe {
 protected:
  /// Opens the options, clicks the named controls, and answers the confirmation if one follows.
  void Waehle(const QStringList &klicks, const char *antwort = "J") {
    if (spiel.Punkte != 0)
      DannAntworte("J");
    Dann<frmOptionen>([=, this](frmOptionen &fenster) {
      for (const QString &name : klicks) {
        if (name == "cmdNehmen")
          DannAntworte(antwort);
        Klick(Finde(fenster, name));
      }
      fenster.close();
    });
    Klick("imgEinstellungen");
  }
};

TEST_F(Optionen, jede_stufe_in_jedem_modus_beginnt_ihr_spiel) {
  constexpr int kPunkte[][6] = {{500, 1500, 3000, 4500, 6000, 7500},
                                {500, 1500, 3000, 4500, 6000, 7500},
                                {500, 1750, 3500, 5250, 7000, 8750}};
  for (int modus = 1; modus <= kModi; ++modus) {
    for (int stufe = 0; stufe < 6; ++stufe) {
      QStringList klicks;
      if (stufe != 0)  // The first tier is chosen already, and its face takes no clicks.
        klicks << "imgLevel" + QString::number(stufe);
      const bool neu = modus != spiel.Spielmodus;
      if (neu)
        klicks << "imgModus" + QString::number(modus);
      Lege(Datei("sarant.ini"), "fremd");
      Waehle(klicks << "cmdNehmen", "N");
      EXPECT_NE(spiel.Punkte, kPunkte[modus - 1][stufe]);
      Waehle(klicks);
      EXPECT_EQ(spiel.Level, 5 * stufe + 1);
      EXPECT_EQ(spiel.Spielmodus, modus);
      EXPECT_EQ(spiel.Punkte, kPunkte[modus - 1][stufe]);
      // A mode that stays as it was is not written.
      EXPECT_EQ(Inhalt(Datei("sarant.ini")), neu ? QByteArray::number(modus) + "\r\n" : "fremd");
    }
  }
}

TEST_F(Optionen, stehen_auf_den_pixel) {
  frmOptionen fenster(spielfeld.get(), *spielfeld);
  EXPECT_EQ(fenster.size(), QSize(484, 448));
  ErwarteLagen(fenster, {{"imgLevel0", {110, 56, 145, 32}},
                         {"imgLevelWahl2", {110, 136, 145, 32}},
                         {"imgLevel3", {277, 56, 145, 32}},
                         {"imgModus1", {110, 243, 145, 32}},
                         {"imgModus3", {190, 282, 145, 32}},
                         {"imgSound0", {150, 340, 191, 42}},
                         {"cmdEnde", {98, 396, 191, 42}},
                         {"cmdNehmen", {292, 396, 191, 42}}});
  EXPECT_EQ(Finde(fenster, "imgModusWahl2")->toolTip(), "Aktueller Spielmodus");
  EXPECT_TRUE(Finde(fenster, "imgModus2")->isHidden());
}

class Bestenfenster : public Fensterprobe {
 protected:
  frmBeste &Fenster() { return frmBeste::Fenster(spielfeld.get(), *spielfeld); }
  /// Enters the list with some points, and does something with the open window.
  void TrageEin(std::int32_t punkte, const std::function<void(frmBeste &)> &handlung) {
    spiel.Punkte = punkte;
    DannAntworte("J");
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
  static void Ok(frmBeste &fenster) { Klick(Finde(fenster, "cmdEnde")); }
};

TEST_F(Bestenfenster, ein_eintrag_steht_an_seinem_platz_und_gleichstand_darunter) {
  constexpr int kFaelle[][2] = {{13001, 4}, {14500, 2}, {99999, 0}, {99998, 1}, {15001, 2}};
  for (const auto &[punkte, platz] : kFaelle) {
    TrageEin(punkte, [p = platz, wert = punkte](frmBeste &fenster) {
      EXPECT_EQ(Name(fenster, p)->selectedText(), "Spieler");
      EXPECT_EQ(Gezeigt(fenster, p), QString::number(wert));
      EXPECT_TRUE(Finde(fenster, "lblClear")->isHidden());
      Name(fenster, p)->insert("Käthe €");  // As an input method would; it replaces the selection.
      for (const char *taste : {"Return", "Esc", "Alt+A"})
        Druecke(fenster, taste);
      ASSERT_TRUE(fenster.isVisible());
      Ok(fenster);
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
  TrageEin(20000, [](frmBeste &fenster) {
    EXPECT_EQ(Gezeigt(fenster, 1), "15000");
    Name(fenster, 0)->clear();
    Ok(fenster);
  });
  EXPECT_EQ(Zeilen().first(), "Spieler");
}

TEST_F(Bestenfenster, lesend_bleibt_alles_gesperrt_bis_ein_eintrag_das_fenster_uebernimmt) {
  Lege(Datei("sarant.txt"), "A\r\nB\r\nC\r\nD\r\nE\r\n1234567\r\n 42\r\nabc\r\n0\r\n7\r\n");
  Fenster().ZeigeZumLesen();
  const char *gezeigt[] = {"1234567", "42", "", "", "7"};
  for (int zeile = 0; zeile < 5; ++zeile)
    EXPECT_EQ(Gezeigt(Fenster(), zeile), gezeigt[zeile]);
  EXPECT_EQ(Fenster().pos(), spielfeld->frameGeometry().topLeft() - QPoint(7, 7));
  EXPECT_EQ(Fenster().size(), QSize(342, 323));
  EXPECT_EQ(Name(Fenster(), 4)->geometry(), QRect(87, 182, 147, 27));
  EXPECT_EQ(Fenster().findChildren<Zifferreihe *>().at(1)->geometry(), QRect(238, 82, 98, 28));
  QTest::keyClicks(Name(Fenster(), 0), "x");
  EXPECT_EQ(Name(Fenster(), 0)->text(), "A");
  TrageEin(40, Ok);
  EXPECT_TRUE(Fenster().isHidden());
  EXPECT_EQ(Zeilen().at(2), "Spieler");
}

TEST_F(Bestenfenster, wird_nur_mit_ja_geloescht) {
  TrageEin(16000, Ok);
  const QByteArray voll = Inhalt(Datei("sarant.txt"));
  Fenster().ZeigeZumLesen();
  EXPECT_FALSE(Finde(Fenster(), "lblClear")->isHidden());
  DannAntworte("N");
  Klick(Finde(Fenster(), "lblClear"));
  EXPECT_EQ(Inhalt(Datei("sarant.txt")), voll);
  EXPECT_TRUE(Fenster().isHidden());
  Fenster().close();  // Unloading brings the access key back.
  DannAntworte("J");  // Only the first time: a list of defaults is not cleared.
  for (int mal = 0; mal < 2; ++mal) {
    Fenster().ZeigeZumLesen();
    EXPECT_EQ(Finde(Fenster(), "lblClear")->isHidden(), mal == 1);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Fenster()));
    Druecke(Fenster(), "Alt+A");
    EXPECT_EQ(Inhalt(Datei("sarant.txt")).size(), 80);
    EXPECT_EQ(spiel.Bestenschwelle, 13000);
    EXPECT_TRUE(Fenster().isHidden());
  }
}

}  // namespace
