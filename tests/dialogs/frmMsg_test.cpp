#include "dialogs/frmMsg.h"

#include "dialogs/bilder.h"
#include "tests/fensterprobe.h"

namespace {

class Meldungen : public Fensterprobe {
 protected:
  Meldungen() { Starte(); }
};

TEST_F(Meldungen, jede_taste_und_jeder_knopf_gibt_seine_antwort) {
  const struct {
    std::function<void(Meldefenster &)> handlung;
    std::int16_t antwort;
  } faelle[] = {
      {[](Meldefenster &f) { QTest::keyClick(&f, Qt::Key_J); }, kJa},
      {[](Meldefenster &f) { QTest::keyClick(&f, Qt::Key_J, Qt::ShiftModifier); }, kJa},
      {[](Meldefenster &f) { QTest::keyClick(&f, Qt::Key_N); }, kNein},
      {[](Meldefenster &f) { QTest::keyClick(&f, Qt::Key_Escape); }, kAbgebrochen},
      {[](Meldefenster &f) { Klick(Finde(f, "lblJa")); }, kJa},
      {[](Meldefenster &f) { Klick(Finde(f, "lblNein")); }, kNein},
      {[](Meldefenster &f) { Klick(Finde(f, "Image1")); }, kAbgebrochen},
      {[](Meldefenster &f) { f.close(); }, kAbgebrochen},
  };
  for (const auto &fall : faelle) {
    spiel.Antwort = kJa;
    Dann<frmMsgJa>([&fall](frmMsgJa &fenster) {
      // None of these has a function, and a release elsewhere is no click.
      for (const Qt::Key taste : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F1, Qt::Key_Space})
        QTest::keyClick(&fenster, taste);
      QTest::mousePress(Finde(fenster, "lblJa"), Qt::LeftButton);
      QTest::mouseRelease(Finde(fenster, "lblJa"), Qt::LeftButton, {}, QPoint(-50, 0));
      ASSERT_TRUE(fenster.isVisible());
      fall.handlung(fenster);
    });
    EXPECT_EQ(spielfeld->Frage(FrageBeenden()), fall.antwort == kJa);
    EXPECT_EQ(spiel.Antwort, fall.antwort);
  }
  EXPECT_EQ(gesehen, 8);
}

TEST_F(Meldungen, eine_meldung_laesst_die_antwort_stehen) {
  spiel.Antwort = kNein;
  Dann<frmMsgOk>([](frmMsgOk &fenster) {
    for (const Qt::Key taste : {Qt::Key_J, Qt::Key_N, Qt::Key_Return})
      QTest::keyClick(&fenster, taste);
    ASSERT_TRUE(fenster.isVisible());
    EXPECT_EQ(Text(fenster, "lblMeldung"),
              "Spielidee und Programmierung:\nWerkstatt Glanzgrube\nwerkstatt.glanzgrube.example");
    Klick(Finde(fenster, "lblOk"));
  });
  Klick("lblInfo");
  Dann<frmMsgOk>([](frmMsgOk &fenster) { QTest::keyClick(&fenster, Qt::Key_Escape); });
  spielfeld->Melde(MeldungKeinDateiname());
  EXPECT_EQ(spiel.Antwort, kNein);
  EXPECT_EQ(gesehen, 2);
}

TEST_F(Meldungen, stehen_auf_den_pixel_und_an_ihrem_ort) {
  const auto Lage = [](QWidget &f, const QString &name) {
    return Finde<QWidget>(f, name)->geometry();
  };
  const QPoint ecke = spielfeld->frameGeometry().topLeft();
  Dann<frmMsgJa>([&](frmMsgJa &fenster) {
    EXPECT_EQ(fenster.size(), QSize(392, 236));
    EXPECT_EQ(fenster.geometry().center(), spielfeld->frameGeometry().center());
    EXPECT_EQ(Lage(fenster, "lblName"), QRect(62, 12, 261, 21));
    EXPECT_EQ(Lage(fenster, "Image1"), QRect(364, 4, 21, 21));
    EXPECT_EQ(Lage(fenster, "lblMeldung"), QRect(8, 2, 365, 55));
    EXPECT_EQ(Lage(fenster, "lblTitel"), QRect(4, 60, 367, 69));
    EXPECT_EQ(Lage(fenster, "lblNein"), QRect(32, 194, 147, 25));
    EXPECT_EQ(Lage(fenster, "lblJa"), QRect(222, 192, 145, 29));
    EXPECT_EQ(Text(fenster, "lblName"), "Glanzgrube  Vers.: 3.2.0");
    EXPECT_EQ(Text(fenster, "lblMeldung"),
              "Es läuft bereits ein aktuelles Spiel.\nSind Sie sicher,\n"
              "dass Sie ein neues Spiel beginnen möchten?");
    EXPECT_EQ(Text(fenster, "lblTitel"), "\n»Neues Spiel« bestätigen");
    EXPECT_EQ(Finde(fenster, "lblNein")->toolTip(), "Fenster schließen ohne Bestätigung");
    EXPECT_EQ(Finde(fenster, "lblJa")->cursor().hotSpot(), QPoint(5, 0));
    fenster.close();
  });
  spielfeld->Frage(FrageNeuesSpiel());
  Dann<frmMsgOk>([&](frmMsgOk &fenster) {
    EXPECT_EQ(fenster.size(), QSize(387, 228));
    EXPECT_EQ(fenster.pos(), ecke + QPoint(7, 7));
    EXPECT_EQ(Lage(fenster, "lblOk"), QRect(120, 194, 145, 27));
    fenster.close();
  });
  spielfeld->Melde(MeldungVielenDank());
  Dann<frmMsgJa>([&](frmMsgJa &fenster) {
    EXPECT_EQ(fenster.pos(), ecke - QPoint(7, 7));
    fenster.close();
  });
  spielfeld->Frage(FrageSucheSpielstand());
  EXPECT_EQ(gesehen, 3);
}

TEST_F(Meldungen, halten_die_pfeile_nicht_an) {
  Dann<frmMsgJa>([this](frmMsgJa &fenster) {
    const QPixmap *vorher = Finde(*spielfeld, "imgZeigeStart")->GezeigtesBild();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Finde(*spielfeld, "imgZeigeStart")->GezeigtesBild() != vorher; }, 2000));
    fenster.close();
  });
  spielfeld->Frage(FrageBeenden());
  EXPECT_EQ(gesehen, 1);
}

}  // namespace
