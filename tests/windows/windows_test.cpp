// The windows, played by mouse and keyboard.
#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

#include "controls/bilder.h"
#include "controls/masse.h"
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
  for (const auto &[button, answer] : {std::pair("lblJa", kJa),
                                       {"", kAbgebrochen},
                                       {"lblNein", kNein},
                                       {"Image1", kAbgebrochen}}) {
    Ask([button = button](Meldefenster &window) {
      for (const char *key : {"Return", "Enter", "F1", "Space", "Ctrl+J", "Alt+N", "Meta+Esc"})
        Press(window, key);
      QTest::mousePress(Find(window, "lblJa"), Qt::LeftButton);
      QTest::mouseRelease(Find(window, "lblJa"), Qt::LeftButton, {}, QPoint(-50, 0));
      EXPECT_TRUE(window.isVisible());
      if (*button)
        Click(Find(window, button));
    });
    EXPECT_EQ(spiel.Antwort, answer) << button;
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
    const QPoint before = window.pos(), by(40, 30);
    QTest::mousePress(&window, Qt::LeftButton, {}, {9, 9});
    QMouseEvent drag(QEvent::MouseMove, by, before + QPoint(9, 9) + by, {}, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &drag);
    EXPECT_EQ(window.pos(), before + by);
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

TEST_F(Messages, EachPressCountsUnlessAWindowHasJustClosedThere) {
  Click("imgNeuesSpiel");
  int cell = 44;  // Behind the middle of a message.
  while (board->LiesKachel(cell) == Kachel::Sarant || board->LiesKachel(cell + 1) == Kachel::Sarant)
    ++cell;
  const auto Send = [&](Bild *target, QEvent::Type press, quint64 time) {
    for (const auto type : {press, QEvent::MouseButtonRelease}) {
      const Qt::MouseButton button = target->IstZweitastig() ? Qt::RightButton : Qt::LeftButton;
      QMouseEvent event(type, {5, 5}, target->mapToGlobal(QPointF(5, 5)), button, button, {});
      event.setTimestamp(time);
      QApplication::sendEvent(target, &event);
    }
  };
  const auto Toggles = [&](int number, QEvent::Type press, quint64 time) {
    const Kachel before = board->LiesKachel(number);
    Send(Find(*board, "imgSar" + QString::number(number)), press, time);
    return board->LiesKachel(number) != before;
  };
  EXPECT_TRUE(Toggles(cell, QEvent::MouseButtonPress, 100'000));
  EXPECT_TRUE(Toggles(cell + 1, QEvent::MouseButtonDblClick, 100'100));
  Then<frmMsgOk>(
      [&](frmMsgOk &window) { Send(Find(window, "lblOk"), QEvent::MouseButtonPress, 200'000); });
  board->Melde(MeldungInfo);
  EXPECT_FALSE(Toggles(cell, QEvent::MouseButtonDblClick, 200'090));
  EXPECT_FALSE(Toggles(cell, QEvent::MouseButtonPress, 200'400));
  EXPECT_TRUE(Toggles(cell, QEvent::MouseButtonPress, 200'900));
  Send(Find(*board, "imgEnde"), QEvent::MouseButtonDblClick, 300'000);  // A question would fail.
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
  frmHintergrund *cover = nullptr;
  for (QWindow *window : QGuiApplication::topLevelWindows())
    if (auto *found = qobject_cast<frmHintergrund *>(window))
      cover = found;
  ASSERT_NE(cover, nullptr);
  EXPECT_EQ(cover->geometry(), board->screen()->geometry());
  Ask([&](Meldefenster &window) {
    board->showMinimized();
    QTest::mouseClick(cover, Qt::LeftButton);
    EXPECT_TRUE(window.isActiveWindow() && !board->isMinimized());
    EXPECT_EQ(board->centralWidget()->internalWinId(), 0U) << "it is no window of its own";
  });
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
    Click("cmdWiederholen");
    ExpectPainted();
  }
  EXPECT_EQ(GeladeneBilder(), loaded);
  auto *level = board->findChildren<Zifferreihe *>().at(4);
  level->setFocus();
  EXPECT_EQ(level->grab().toImage().pixelColor(0, 18), Qt::blue) << "no ring";
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

TEST_F(MainWindow, SpeaksGermanInTheFileDialogWhichCanBeCancelled) {
  for (const Bedienung button : {Bedienung::imgOeffnen, Bedienung::imgSpeichern})
    board->Zeige(button, true);
  WriteFile(DataFile("alt.sar"), QByteArray(2048, ' '));
  QFile file(DataFile("alt.sar"));
  file.open(QIODevice::ReadWrite);
  file.setFileTime(QDateTime(QDate(2026, 3, 31), QTime(1, 2)), QFileDevice::FileModificationTime);
  const auto Cancel = [](QFileDialog &dialog) {
    auto *table = Find<QTreeView>(dialog, "treeView");
    const QModelIndex row = table->rootIndex();
    EXPECT_TRUE(QTest::qWaitFor([&] { return table->model()->rowCount(row) > 0; }));
    QStringList words{Find<QLabel>(dialog, "fileNameLabel")->text()};
    for (int column = 0; column < 4; ++column)
      words << table->model()->headerData(column, Qt::Horizontal).toString()
            << table->model()->index(0, column, row).data().toString();
    EXPECT_EQ(words.join('|'),
              "Datei&name:|Name|alt.sar|Größe|2,00 KiB|Typ|Datei|Änderungsdatum|31.03.26 01:02");
    QTest::keyClicks(Find<QLineEdit>(dialog, "fileNameEdit"), "alt.sar");
    Press(dialog, "Esc");
  };
  Then<QFileDialog>(Cancel);
  Click("imgOeffnen");  // Without a question.
  Then<QFileDialog>(Cancel);
  Then<frmMsgOk>([](frmMsgOk &window) {
    EXPECT_EQ(Find<QLabel>(window, "lblTitel")->text(), "\nKein gültiger Dateiname");
    window.close();
  });
  Find<QAction>(*board, "mnuSpiel3")->trigger();
}

TEST_F(MainWindow, EachTierInEachModeBeginsItsGame) {
  for (int choice = 0; choice < 6; ++choice) {
    WriteFile(DataFile("sarant.ini"), "other");  // A mode that stays as it was is not written.
    for (const char *answer : {"N", "J"}) {
      spiel.Punkte = 0;
      Then<frmOptionen>([&](frmOptionen &window) {
        EXPECT_EQ(window.pos(), board->pos() - QPoint(7, 7));
        for (const QString &name :
             {QString("imgLevel%1").arg(choice), QString("imgModus%1").arg(choice / 2 + 1)}) {
          Bild *face = Find(window, name);
          if (face->isVisible())  // It is not the chosen one, which has another face.
            Click(face);
          EXPECT_TRUE(face->isHidden());
        }
        ThenAnswer(answer);
        Click(Find(window, "cmdNehmen"));
      });
      Click("imgEinstellungen");
      told << answer << " | level " << spiel.Level << " " << ModusName(spiel.Spielmodus)
           << " | points " << spiel.Punkte << " | settings "
           << ReadFile(DataFile("sarant.ini")).trimmed().data() << "\n";
      EXPECT_EQ(Find(*board, "imgZeigeStart")->Bildname(), "");
    }
  }
}

}  // namespace

int main(int argc, char *argv[]) {
  // Two screens side by side, of which the second one is twice as dense.
  const QTemporaryDir folder;
  QDir::setCurrent(folder.path());  // A full path has a colon under Windows, which ends the name.
  const int width = qEnvironmentVariable("SCREEN_WIDTH", "1280").toInt();
  const auto screens = QString(R"({"screens": [
    {"name": "1", "x": 0, "y": 0, "width": %1, "height": %2},
    {"name": "2", "x": %1, "y": 0, "width": 2560, "height": 2048}]})");
  WriteFile("screens", screens.arg(width).arg(width * 4 / 5).toUtf8());
  qputenv("QT_SCREEN_SCALE_FACTORS", "1=1;2=2");  // Windows do not see a "dpr" of these screens.
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens");
  qputenv("LC_ALL", "fr_FR.UTF-8");  // Any language but German.
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QDir::setCurrent(QDir::rootPath());
  StelleMassstab(Schrumpffaktor());
  RichteAnwendungEin(application);
  return RUN_ALL_TESTS();
}
