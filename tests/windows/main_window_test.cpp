#include "shell/frmSpielfeld.h"

#include <QAction>
#include <QApplication>

#include "controls/bilder.h"
#include "controls/zifferreihe.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmHintergrund.h"
#include "dialogs/frmOptionen.h"
#include "tests/window_fixture.h"

namespace {

using Spielfeld = WindowFixture;

TEST_F(Spielfeld, StehtInDerMitteVorEinemHintergrundDerEsZurueckholt) {
  EXPECT_EQ(Find(*board, "frmSpielfeld")->size(), QSize(878, 729));
  EXPECT_EQ(Find(*board, "imgZeigeStart")->Bildname(), "pfeilhoch0");
  EXPECT_EQ(spiel.Bestenschwelle, 13000);
  const QPoint mitte = board->screen()->availableGeometry().center();
  EXPECT_LE((board->frameGeometry().center() - mitte).manhattanLength(), 2);
  QWidget *hintergrund = nullptr;
  for (QWidget *fenster : QApplication::topLevelWidgets()) {
    if (qobject_cast<frmHintergrund *>(fenster) && fenster->isVisible())
      hintergrund = fenster;
  }
  ASSERT_NE(hintergrund, nullptr);
  EXPECT_EQ(hintergrund->geometry(), board->screen()->geometry());
  EXPECT_TRUE(QTest::qWaitFor([&] { return hintergrund->updatesEnabled(); }));
  Then<frmMsgJa>([&](frmMsgJa &fenster) {
    board->showMinimized();
    Click(hintergrund);
    EXPECT_FALSE(board->isMinimized());
    EXPECT_TRUE(fenster.isActiveWindow());
    fenster.close();
  });
  board->Frage(FrageBeenden());
}

TEST_F(Spielfeld, SprichtAuchInQtsFensternDeutsch) {
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
}

TEST_F(Spielfeld, ZeigtBeimSpielenAllesSofortUndEntziffertKeinBildMehr) {
  QCoreApplication::processEvents();
  const int geladen = GeladeneBilder();
  const auto ErwarteNeuGezeichnet = [this] {
    QTest::qWait(20);
    const QImage schirm = board->screen()->grabWindow(board->winId()).toImage();
    EXPECT_EQ(schirm, board->grab().toImage());
  };
  for (int level = 0; level < 3; ++level) {
    spiel.Punkte = 0;
    Click("imgNeuesSpiel");
    ErwarteNeuGezeichnet();
    Verliere();
    const QImage fehler = board->findChildren<Zifferreihe *>().back()->grab().toImage();
    EXPECT_EQ(fehler.copy(14, 0, 14, 28).convertToFormat(QImage::Format_RGB32),
              Katalogbild("rot2", 1).toImage().convertToFormat(QImage::Format_RGB32));
    Click("cmdWiederholen");
    EXPECT_EQ(spiel.Punkte, 400);
    ErwarteNeuGezeichnet();
  }
  EXPECT_EQ(GeladeneBilder(), geladen);
}

TEST_F(Spielfeld, LaesstDenGedruecktenKnopfLosWennEineFrageKommt) {
  Bild *knopf = Find(*board, "lblInfo");
  QTest::mousePress(knopf, Qt::LeftButton);
  EXPECT_EQ(knopf->Bildname(), "cmdBeschreibungenFruen");
  ThenAnswer("N");
  board->Frage(FrageNeuesSpiel());
  EXPECT_EQ(knopf->Bildname(), "cmdBeschreibungenAuswahl");
}

TEST_F(Spielfeld, LaesstDieTastenLiegenSolangeKeinHilfsmittelDaIst) {
  Click("imgNeuesSpiel");
  const int rest = spiel.SarantenRest;
  for (const char *taste : {"Tab", "Down", "Space", "Shift+Tab", "Return"})
    Press(*board, taste);
  EXPECT_EQ(board->focusWidget(), nullptr);
  EXPECT_EQ(spiel.SarantenRest, rest);
}

TEST_F(Spielfeld, ErreichtOhneMausNurWasEineMausErreicht) {
  const auto Bediene = [this](const QString &name) { Find(*board, name)->Bediene(Qt::LeftButton); };
  Bediene("imgNeuesSpiel");
  for (const char *verborgen : {"cmdWiederholen", "imgNextLevel", "imgModus1"})
    Bediene(verborgen);
  EXPECT_EQ(spiel.Level, 1);
  EXPECT_EQ(spiel.Spielmodus, kModusNormal);
  Then<frmMsgJa>([&](frmMsgJa &fenster) {
    for (int n = 1; n <= kZellen; ++n)
      Bediene("imgSar" + QString::number(n));
    Bediene("imgEnde");
    for (QAction *eintrag : board->findChildren<QAction *>())
      eintrag->trigger();
    EXPECT_TRUE(fenster.isVisible());
    Press(fenster, "N");
  });
  board->Frage(FrageNeuesSpiel());
  EXPECT_EQ(spiel.SarantenRest, 75 - spiel.Startfelder);
  EXPECT_EQ(spiel.Fehler, 0);
  EXPECT_TRUE(spiel.SoundAn);
  EXPECT_EQ(board->findChild<frmBeste *>(), nullptr);
}

}  // namespace
