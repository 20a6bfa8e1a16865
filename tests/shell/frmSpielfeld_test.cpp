#include "shell/frmSpielfeld.h"

#include <QAction>
#include <QApplication>

#include "controls/bilder.h"
#include "controls/zifferreihe.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmHintergrund.h"
#include "dialogs/frmOptionen.h"
#include "tests/fensterprobe.h"

namespace {

using Spielfeld = Fensterprobe;

TEST_F(Spielfeld, StehtInDerMitteVorEinemHintergrundDerEsZurueckholt) {
  EXPECT_EQ(Finde(*spielfeld, "frmSpielfeld")->size(), QSize(878, 729));
  EXPECT_EQ(Finde(*spielfeld, "imgZeigeStart")->Bildname(), "pfeilhoch0");
  EXPECT_EQ(spiel.Bestenschwelle, 13000);
  const QPoint mitte = spielfeld->screen()->availableGeometry().center();
  EXPECT_LE((spielfeld->frameGeometry().center() - mitte).manhattanLength(), 2);
  QWidget *hintergrund = nullptr;
  for (QWidget *fenster : QApplication::topLevelWidgets()) {
    if (qobject_cast<frmHintergrund *>(fenster) && fenster->isVisible())
      hintergrund = fenster;
  }
  ASSERT_NE(hintergrund, nullptr);
  EXPECT_EQ(hintergrund->geometry(), spielfeld->screen()->geometry());
  EXPECT_TRUE(QTest::qWaitFor([&] { return hintergrund->updatesEnabled(); }));
  Dann<frmMsgJa>([&](frmMsgJa &fenster) {
    spielfeld->showMinimized();
    Klick(hintergrund);
    EXPECT_FALSE(spielfeld->isMinimized());
    EXPECT_TRUE(fenster.isActiveWindow());
    fenster.close();
  });
  spielfeld->Frage(FrageBeenden());
}

TEST_F(Spielfeld, SprichtAuchInQtsFensternDeutsch) {
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
}

TEST_F(Spielfeld, ZeigtBeimSpielenAllesSofortUndEntziffertKeinBildMehr) {
  QCoreApplication::processEvents();
  const int geladen = GeladeneBilder();
  const auto ErwarteNeuGezeichnet = [this] {
    QTest::qWait(20);
    const QImage schirm = spielfeld->screen()->grabWindow(spielfeld->winId()).toImage();
    EXPECT_EQ(schirm, spielfeld->grab().toImage());
  };
  for (int level = 0; level < 3; ++level) {
    spiel.Punkte = 0;
    Klick("imgNeuesSpiel");
    ErwarteNeuGezeichnet();
    Verliere();
    const QImage fehler = spielfeld->findChildren<Zifferreihe *>().back()->grab().toImage();
    EXPECT_EQ(fehler.copy(14, 0, 14, 28).convertToFormat(QImage::Format_RGB32),
              Katalogbild("rot2", 1).toImage().convertToFormat(QImage::Format_RGB32));
    Klick("cmdWiederholen");
    EXPECT_EQ(spiel.Punkte, 400);
    ErwarteNeuGezeichnet();
  }
  EXPECT_EQ(GeladeneBilder(), geladen);
}

TEST_F(Spielfeld, LaesstDenGedruecktenKnopfLosWennEineFrageKommt) {
  Bild *knopf = Finde(*spielfeld, "lblInfo");
  QTest::mousePress(knopf, Qt::LeftButton);
  EXPECT_EQ(knopf->Bildname(), "cmdBeschreibungenFruen");
  DannAntworte("N");
  spielfeld->Frage(FrageNeuesSpiel());
  EXPECT_EQ(knopf->Bildname(), "cmdBeschreibungenAuswahl");
}

TEST_F(Spielfeld, LaesstDieTastenLiegenSolangeKeinHilfsmittelDaIst) {
  Klick("imgNeuesSpiel");
  const int rest = spiel.SarantenRest;
  for (const char *taste : {"Tab", "Down", "Space", "Shift+Tab", "Return"})
    Druecke(*spielfeld, taste);
  EXPECT_EQ(spielfeld->focusWidget(), nullptr);
  EXPECT_EQ(spiel.SarantenRest, rest);
}

TEST_F(Spielfeld, ErreichtOhneMausNurWasEineMausErreicht) {
  const auto Bediene = [this](const QString &name) {
    Finde(*spielfeld, name)->Bediene(Qt::LeftButton);
  };
  Bediene("imgNeuesSpiel");
  for (const char *verborgen : {"cmdWiederholen", "imgNextLevel", "imgModus1"})
    Bediene(verborgen);
  EXPECT_EQ(spiel.Level, 1);
  EXPECT_EQ(spiel.Spielmodus, kModusNormal);
  Dann<frmMsgJa>([&](frmMsgJa &fenster) {
    for (int n = 1; n <= kZellen; ++n)
      Bediene("imgSar" + QString::number(n));
    Bediene("imgEnde");
    for (QAction *eintrag : spielfeld->findChildren<QAction *>())
      eintrag->trigger();
    EXPECT_TRUE(fenster.isVisible());
    Druecke(fenster, "N");
  });
  spielfeld->Frage(FrageNeuesSpiel());
  EXPECT_EQ(spiel.SarantenRest, 75 - spiel.Startfelder);
  EXPECT_EQ(spiel.Fehler, 0);
  EXPECT_TRUE(spiel.SoundAn);
  EXPECT_EQ(spielfeld->findChild<frmBeste *>(), nullptr);
}

}  // namespace
