#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

#include "controls/bilder.h"
#include "controls/zifferreihe.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmHintergrund.h"
#include "persistence/modDateiHandling.h"
#include "tests/window_fixture.h"

namespace {

using MainWindow = WindowFixture;

TEST_F(MainWindow, StandsInTheMiddleBeforeACoverThatBringsItBack) {
  EXPECT_EQ(Find(*board, "imgZeigeStart")->Bildname(), "pfeilhoch0");
  EXPECT_EQ(spiel.Bestenschwelle, 13000);
  const QPoint middle = board->screen()->availableGeometry().center();
  EXPECT_LE((board->frameGeometry().center() - middle).manhattanLength(), 2);
  QWidget *cover = nullptr;
  for (QWidget *window : QApplication::topLevelWidgets())
    if (qobject_cast<frmHintergrund *>(window) && window->isVisible())
      cover = window;
  ASSERT_NE(cover, nullptr);
  EXPECT_EQ(cover->geometry(), board->screen()->geometry());
  EXPECT_TRUE(QTest::qWaitFor([&] { return cover->updatesEnabled(); }));
  Ask([&](Meldefenster &window) {
    board->showMinimized();
    Click(cover);
    EXPECT_FALSE(board->isMinimized());
    EXPECT_TRUE(window.isActiveWindow());
  });
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
}

TEST_F(MainWindow, ShowsAllAtOnceAndDecodesNoPictureWhilePlaying) {
  QCoreApplication::processEvents();
  const int loaded = GeladeneBilder();
  const auto ExpectPainted = [this] {
    QTest::qWait(20);
    const QImage screen = board->screen()->grabWindow(board->winId()).toImage();
    EXPECT_EQ(screen, board->grab().toImage());
  };
  for (int level = 0; level < 3; ++level) {
    spiel.Punkte = 0;
    Click("imgNeuesSpiel");
    ExpectPainted();
    Lose();
    const QImage errors = board->findChildren<Zifferreihe *>().at(2)->grab().toImage();
    EXPECT_EQ(errors.copy(14, 0, 14, 28).convertToFormat(QImage::Format_RGB32),
              Katalogbild("rot2", 1).toImage().convertToFormat(QImage::Format_RGB32));
    Click("cmdWiederholen");
    EXPECT_EQ(spiel.Punkte, 400);
    ExpectPainted();
  }
  EXPECT_EQ(GeladeneBilder(), loaded);
}

TEST_F(MainWindow, ReleasesThePressedButtonWhenAQuestionComes) {
  Bild *button = Find(*board, "lblInfo");
  QTest::mousePress(button, Qt::LeftButton);
  EXPECT_EQ(button->Bildname(), "cmdBeschreibungenFruen");
  Ask([](Meldefenster &) {});
  EXPECT_EQ(button->Bildname(), "cmdBeschreibungenAuswahl");
}

TEST_F(MainWindow, LeavesTheKeysAloneWithoutAssistiveTechnology) {
  Click("imgNeuesSpiel");
  const int rest = spiel.SarantenRest;
  for (const char *key : {"Tab", "Down", "Space", "Shift+Tab", "Return"})
    Press(*board, key);
  EXPECT_EQ(board->focusWidget(), nullptr);
  EXPECT_EQ(spiel.SarantenRest, rest);
}

TEST_F(MainWindow, LetsOnlyThoseActWithoutAMouseWhomAMouseReaches) {
  const auto Use = [this](const QString &name) { Find(*board, name)->Bediene(Qt::LeftButton); };
  Use("imgNeuesSpiel");
  for (const char *hidden : {"cmdWiederholen", "imgNextLevel", "imgModus1"})
    Use(hidden);
  EXPECT_EQ(spiel.Level, 1);
  EXPECT_EQ(spiel.Spielmodus, kModusNormal);
  Ask([&](Meldefenster &window) {
    for (int n = 1; n <= kZellen; ++n)
      Use("imgSar" + QString::number(n));
    Use("imgEnde");
    for (QAction *entry : board->findChildren<QAction *>())
      entry->trigger();
    EXPECT_TRUE(window.isVisible());
  });
  EXPECT_EQ(spiel.SarantenRest, 75 - spiel.Startfelder);
  EXPECT_EQ(spiel.Fehler, 0);
  EXPECT_TRUE(spiel.SoundAn);
  EXPECT_EQ(board->findChild<frmBeste *>(), nullptr);
}

TEST_F(MainWindow, SavesUnderTheNameThatStandsInTheField) {
  board->Zeige(Bedienung::imgSpeichern, true);
  QDir(DataFile("")).removeRecursively();
  const auto SaveAs = [&](const QString &name) {
    Then<QFileDialog>([name](QFileDialog &dialog) {
      QTest::keyClicks(Find<QLineEdit>(dialog, "fileNameEdit"), name);
      Click(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save));
    });
  };
  for (const char *name : {".sar", "\".sar", "Spiel \"Anna\".sar", ":Anna.sar ", "a b"}) {
    SaveAs(name);
    Click("imgSpeichern");
    EXPECT_TRUE(QFile::exists(DataFile(MitEndung(QString(name).trimmed())))) << name;
    EXPECT_TRUE(SpielstandVorhanden());
  }
  SaveAs(QString(256, 'x'));
  Then<Meldefenster>([&](Meldefenster &window) {
    EXPECT_TRUE(Text(window, "lblTitel").endsWith("8"));
    window.close();
  });
  Click("imgSpeichern");
}

}  // namespace
