// The windows, played by mouse and keyboard.
#include <QtTest/qtestspontaneevent.h>
#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

#include "controls/bilder.h"
#include "controls/zifferreihe.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmHintergrund.h"
#include "dialogs/frmOptionen.h"
#include "persistence/modDateiHandling.h"
#include "shell/spielbrett.h"
#include "tests/window_fixture.h"

namespace {

using Messages = WindowFixture;

TEST_F(Messages, CloseByAnAnswerOnly) {
  for (const char *button : {"lblJa", "", "lblNein", "Image1"}) {
    Ask([button](Meldefenster &window) {
      for (const char *key : {"Return", "Enter", "F1", "Space", "Ctrl+J", "Alt+N", "Meta+Esc"})
        Press(window, key);
      const QImage face = Find(window, "lblJa")->grab().toImage();
      Find(window, "lblJa")->setFocus();
      EXPECT_NE(Find(window, "lblJa")->grab().toImage(), face) << "no ring";
      QTest::mousePress(Find(window, "lblJa"), Qt::LeftButton);
      QTest::mouseRelease(Find(window, "lblJa"), Qt::LeftButton, {}, QPoint(-50, 0));
      EXPECT_TRUE(window.isVisible());
      if (*button)
        Click(Find(window, button));
    });
    told << button << " " << spiel.Antwort << "\n";
  }
  // A key counts by its place where the alphabet has no Latin letters.
  for (const auto &[place, answer] : {std::pair(0x24U, kJa), {0x31U, kNein}}) {
    Ask([place = place](Meldefenster &window) {
      for (const int key : {0x58, 0x41E}) {
        EXPECT_TRUE(window.isVisible());
        QKeyEvent event(QEvent::KeyPress, key, {}, place + KEY_OFFSET, 0, 0);
        QApplication::sendEvent(&window, &event);
      }
    });
    EXPECT_EQ(spiel.Antwort, answer);
  }
}

TEST_F(Messages, StandInTheirPlaceAndLetTheArrowBlink) {
  const QRect main = board->frameGeometry();
  const auto ExpectPicture = [this](const char *arrow, const char *picture) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Find(*board, arrow)->Bildname() == picture; }, 2000));
  };
  Ask([&](Meldefenster &window) {
    EXPECT_EQ(window.pos(),
              main.topLeft() + QPoint((main.width() - 392) / 2, (main.height() - 236) / 2));
    ExpectPicture("imgZeigeStart", "pfeilhoch1");
  });
  Then<frmMsgOk>([&](frmMsgOk &window) {
    EXPECT_EQ(window.pos(), main.topLeft() + QPoint(7, 7));
    window.close();
  });
  board->Melde(MeldungVielenDank);
  Click("imgNeuesSpiel");
  Lose();
  ExpectPicture("imgWeiter", "pfeil0");
}

TEST_F(Messages, TheSecondPressOfADoubleClickCountsOnlyWhereTheFirstDid) {
  Click("imgNeuesSpiel");
  int cell = 1;
  while (board->LiesKachel(cell) != Kachel::Verdeckt)
    ++cell;
  const auto Send = [&](QEvent::Type press, quint64 time) {
    for (const auto type : {press, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, {5, 5}, {5, 5}, Qt::RightButton, Qt::RightButton, {});
      event.setTimestamp(time);
      QApplication::sendEvent(Find(*board, "imgSar" + QString::number(cell)), &event);
    }
    return board->LiesKachel(cell);
  };
  EXPECT_EQ(Send(QEvent::MouseButtonDblClick, 100'000), Kachel::Verdeckt);
  EXPECT_EQ(Send(QEvent::MouseButtonPress, 200'000), Kachel::Markiert);
  EXPECT_EQ(Send(QEvent::MouseButtonDblClick, 200'100), Kachel::Verdeckt);
  // A question would fail the test.
  QTest::mouseDClick(Find(*board, "imgNeuesSpiel"), Qt::LeftButton);
}

TEST_F(Messages, AHeldKeyDoesNotCountInTheNextWindow) {
  const auto Send = [](quint64 release, quint64 press, QWidget *target) {
    for (const auto &[type, time] :
         {std::pair(QEvent::KeyRelease, release), {QEvent::KeyPress, press}}) {
      QKeyEvent event(type, Qt::Key_J, {}, "j");
      event.setTimestamp(time);
      QApplication::sendEvent(target, &event);
    }
  };
  spiel.Punkte = 20000;
  Then<frmMsgJa>([&](frmMsgJa &window) { Send(900, 1000, &window); });
  Then<frmBeste>([&](frmBeste &window) {
    auto *name = window.findChild<QLineEdit *>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    Send(1030, 1030, name);  // An X server reports repeats this way.
    Send(1060, 1061, name);
    Send(1030, 1030, name);  // A copy that assistive technology sends late.
    EXPECT_EQ(name->text(), "Spieler");
    for (const char *key : {"J", "Alt+A"})
      Press(*name, key);
    EXPECT_EQ(name->text(), "j");
    name->clear();
    name->insert("Łu\u0308€");
    EXPECT_EQ(name->text(), "ü€");
    window.close();
  });
  board->BestenlistePruefen();
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, {}, " ", true);
  QApplication::sendEvent(Find(*board, "imgNeuesSpiel"), &repeat);
  EXPECT_EQ(spiel.Level, 0);
}

using MainWindow = WindowFixture;

TEST_F(MainWindow, StandsInTheMiddleBeforeACoverThatBringsItBack) {
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
    EXPECT_TRUE(window.isActiveWindow() && !board->isMinimized());
    EXPECT_EQ(board->centralWidget()->internalWinId(), 0U) << "it is no window of its own";
  });
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
}

TEST_F(MainWindow, ShowsAllAtOnceAndDecodesNoPictureWhilePlaying) {
  for (int place = 51; place <= 55; ++place)
    board->SetzeZahl(place, place - 50);
  EXPECT_EQ(board->findChild<Spielbrett *>()->Linientext(false, 1), "Zeile 1: 5, 4, 3, 2, 1");
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
    ExpectPainted();
  }
  EXPECT_EQ(GeladeneBilder(), loaded);
  auto *level = board->findChildren<Zifferreihe *>().at(4);
  level->setFocus();
  EXPECT_EQ(level->grab().toImage().pixelColor(0, 9), Qt::blue) << "no ring";
  for (int place = 51; place <= 55; ++place)
    board->ZeigeZahlfeld(place, false);
  EXPECT_EQ(board->findChild<Spielbrett *>()->Linientext(false, 1), "Zeile 1: leer");
}

TEST_F(MainWindow, LetsOnlyThoseActWithoutAMouseWhomAMouseReaches) {
  const auto Use = [this](const QString &name) { Find(*board, name)->Klicke(Qt::LeftButton); };
  Use("imgNeuesSpiel");
  for (const char *hidden : {"cmdWiederholen", "imgNextLevel", "imgModus1"})
    Use(hidden);
  for (const char *key : {"Tab", "Down", "Space", "Return"})  // Assistive technology is off.
    Press(*board, key);
  EXPECT_EQ(board->focusWidget(), nullptr);
  EXPECT_TRUE(spiel.Level == 1 && spiel.Spielmodus == kModusNormal);
  Bild *held = Find(*board, "lblInfo");
  QTest::mousePress(held, Qt::LeftButton);
  EXPECT_EQ(held->Bildname(), "cmdBeschreibungenFruen");
  Ask([&](Meldefenster &window) {
    EXPECT_EQ(held->Bildname(), "cmdBeschreibungenAuswahl");
    for (int n = 1; n <= kZellen; ++n)
      Use("imgSar" + QString::number(n));
    Use("imgEnde");
    for (QAction *entry : board->findChildren<QAction *>())
      entry->trigger();
    EXPECT_TRUE(window.isVisible());
  });
  EXPECT_EQ(spiel.SarantenRest, 75 - spiel.Startfelder);
  EXPECT_TRUE(spiel.SoundAn && spiel.Fehler == 0);
  Find<QAction>(*board, "mnusoundan2")->trigger();
  EXPECT_FALSE(spiel.SoundAn);
  EXPECT_EQ(board->findChild<frmBeste *>(), nullptr);
}

TEST_F(MainWindow, SavesUnderTheNameThatStandsInTheField) {
  board->Zeige(Bedienung::imgSpeichern, true);
  QDir(DataFile("")).removeRecursively();
  QStringList names{".sar", "a b"};
  if (QDir::separator() == u'/')  // Windows allows neither of these signs in a name.
    names << "\".sar"
          << "Spiel \"Anna\".sar"
          << ":Anna.sar ";
  for (const QString &name : names) {
    Then<QFileDialog>([name](QFileDialog &dialog) {
      QTest::keyClicks(Find<QLineEdit>(dialog, "fileNameEdit"), name);
      Click(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save));
    });
    Click("imgSpeichern");
    EXPECT_TRUE(QFile::exists(DataFile(MitEndung(name.trimmed())))) << name;
    EXPECT_TRUE(SpielstandVorhanden());
  }
}

TEST_F(MainWindow, EachTierInEachModeBeginsItsGame) {
  for (int choice = 0; choice < 18; ++choice) {
    WriteFile(DataFile("sarant.ini"), "other");  // A mode that stays as it was is not written.
    for (const char *answer : {"N", "J"}) {
      spiel.Punkte = 0;
      Then<frmOptionen>([&](frmOptionen &window) {
        EXPECT_EQ(window.pos(), board->pos() - QPoint(7, 7));
        for (const QString &name :
             {QString("imgLevel%1").arg(choice % 6), QString("imgModus%1").arg(choice / 6 + 1)}) {
          Bild *face = Find(window, name);
          if (face->isVisible())  // It is not the chosen one, which has another face.
            Click(face);
          EXPECT_TRUE(face->isHidden());
        }
        ThenAnswer(answer);
        Click(Find(window, "cmdNehmen"));
      });
      Click("imgEinstellungen");
      told << answer << ": level " << spiel.Level << ", mode " << spiel.Spielmodus << ", points "
           << spiel.Punkte << ", file " << ReadFile(DataFile("sarant.ini")).trimmed().data()
           << ", arrow " << Find(*board, "imgZeigeStart")->Bildname() << "\n";
    }
  }
}

class BestWindow : public WindowFixture {
 protected:
  frmBeste &Window() { return board->Bestenfenster(); }
  /// Enters the list with some points, and does something with the open window.
  void Enter(std::int32_t points, const std::function<void(frmBeste &)> &action) {
    spiel.Punkte = points;
    ThenAnswer("J");
    Then<frmBeste>(action);
    board->Zeige(Bedienung::imgBester, true);
    Click("imgBester");
    EXPECT_FALSE(board->IstSichtbar(Bedienung::imgBester));
  }
  QLineEdit *Name(int row) { return Window().findChildren<QLineEdit *>().at(row); }
  void Ok() { Click(Find(Window(), "cmdEnde")); }
  /// Tells the file and the window: names with their selection and cursor, and points.
  void Tell(const char *what) {
    const QByteArray file = ReadFile(DataFile("sarant.txt")).simplified();
    told << what << ": " << file.toPercentEncoding(" ").data() << ", " << spiel.Bestenschwelle;
    for (int row = 0; row < kBeste && Window().isVisible(); ++row)
      told << " | " << Name(row)->text() << " [" << Name(row)->selectedText() << "] "
           << Name(row)->cursorPosition() << " "
           << Window().findChildren<Zifferreihe *>().at(row)->Gezeigt();
    told << (Find(Window(), "lblClear")->isVisible() ? ", may be cleared\n" : "\n");
  }
};

TEST_F(BestWindow, TakesTheNameAndOnlyYesClearsTheList) {
  Enter(14500, [](frmBeste &window) { window.close(); });
  Tell("closed");
  Enter(14500, [this](frmBeste &window) {
    Tell("entry");
    Name(2)->insert("Käthe €");  // As an input method would; it replaces the selection.
    QShowEvent restored;         // By the desktop, after the window was minimised.
    QSpontaneKeyEvent::setSpontaneous(&restored);
    qApp->notify(&window, &restored);
    for (const char *key : {"Return", "Esc", "Alt+A"})
      Press(window, key);
    ASSERT_TRUE(window.isVisible());
    Ok();
  });
  Tell("saved");
  Enter(20000, [this](frmBeste &) {
    Name(0)->clear();
    Ok();
  });
  Tell("without a name");
  Window().close();  // Unloading brings the access key back.
  for (const char *answer : {"N", "J"}) {
    Window().ZeigeZumLesen();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Tell("shown");
    ThenAnswer(answer);
    Press(Window(), "Alt+A");
    Tell(answer);
  }
  Window().ZeigeZumLesen();
  Tell("defaults");
}

TEST_F(BestWindow, ForReadingAllIsLockedUntilAnEntryTakesTheWindow) {
  WriteFile(DataFile("sarant.txt"), "A\r\nB\r\nC\r\nD\r\nE\r\n1234567\r\n 42\r\nabc\r\n0\r\n7\r\n");
  Window().ZeigeZumLesen();
  EXPECT_EQ(Window().pos(), board->frameGeometry().topLeft() - QPoint(7, 7));
  QTest::keyClicks(Name(0), "x");
  Tell("locked");
  Enter(40, [this](frmBeste &) { Ok(); });
  Tell("entry");
}

TEST_F(BestWindow, AShortListIsFullAfterOkAndWhatWasNotClearedIsTold) {
  WriteFile(DataFile("sarant.txt"), "");
  ThenAnswer("Esc");
  Window().ZeigeZumLesen();
  Tell("short");
  Ok();
  Window().ZeigeZumLesen();
  Tell("full");
  QFile::remove(DataFile("sarant.txt"));
  QDir().mkdir(DataFile("sarant.txt"));
  for (const char *key : {"J", "Esc", "Esc"})  // It could be neither written nor read.
    ThenAnswer(key);
  Click(Find(Window(), "lblClear"));
}

}  // namespace

int main(int argc, char *argv[]) {
  // Two screens side by side, of which the second one is twice as dense.
  const QTemporaryDir folder;
  QDir::setCurrent(folder.path());  // A full path has a colon under Windows, which ends the name.
  WriteFile("screens", R"({"screens": [
    {"name": "1", "x": 0, "y": 0, "width": 1280, "height": 1024},
    {"name": "2", "x": 1280, "y": 0, "width": 2560, "height": 2048}]})");
  qputenv("QT_SCREEN_SCALE_FACTORS", "1=1;2=2");  // Windows do not see a "dpr" of these screens.
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens");
  qputenv("LC_ALL", "fr_FR.UTF-8");  // Any language but German.
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QDir::setCurrent(QDir::rootPath());
  RichteAnwendungEin(application);
  return RUN_ALL_TESTS();
}
