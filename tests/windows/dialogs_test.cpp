#include <QtTest/qtestspontaneevent.h>
#include <QDir>
#include <QLineEdit>

#include "controls/zifferreihe.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmOptionen.h"
#include "tests/window_fixture.h"

namespace {

using Messages = WindowFixture;

TEST_F(Messages, CloseByAnAnswerOnly) {
  for (const auto &[name, answer] : {std::pair("lblJa", kJa),
                                     {"lblNein", kNein},
                                     {"Image1", kAbgebrochen},
                                     {"", kAbgebrochen}}) {
    const auto act = [button = name](Meldefenster &window) {
      for (const char *key : {"Return", "Enter", "F1", "Space", "Ctrl+J", "Alt+N", "Meta+Esc"})
        Press(window, key);
      QTest::mousePress(Find(window, "lblJa"), Qt::LeftButton);
      QTest::mouseRelease(Find(window, "lblJa"), Qt::LeftButton, {}, QPoint(-50, 0));
      EXPECT_TRUE(window.isVisible());
      if (*button)
        Click(Find(window, button));
    };
    EXPECT_EQ(Ask(act), answer) << name;
  }
  // A key counts by its place where the alphabet has no Latin letters.
  for (const auto &[place, answer] : {std::pair(0x24U, kJa), {0x31U, kNein}}) {
    const auto press = [place = place](Meldefenster &window) {
      for (const int key : {0x58, 0x41E}) {
        EXPECT_TRUE(window.isVisible());
        QKeyEvent event(QEvent::KeyPress, key, {}, place + KEY_OFFSET, 0, 0);
        QApplication::sendEvent(&window, &event);
      }
    };
    EXPECT_EQ(Ask(press), answer);
  }
}

TEST_F(Messages, StandInTheirPlaceAndLetTheArrowBlink) {
  const QRect main = board->frameGeometry();
  Ask([&](Meldefenster &window) {
    EXPECT_EQ(window.pos(),
              main.topLeft() + QPoint((main.width() - 392) / 2, (main.height() - 236) / 2));
    const Bild *arrow = Find(*board, "imgZeigeStart");
    const QString before = arrow->Bildname();
    EXPECT_TRUE(QTest::qWaitFor([&] { return arrow->Bildname() != before; }, 2000));
  });
  Then<frmMsgOk>([&](frmMsgOk &window) {
    EXPECT_EQ(window.pos(), main.topLeft() + QPoint(7, 7));
    window.close();
  });
  board->Melde(MeldungVielenDank);
  Click("imgNeuesSpiel");
  Lose();
  const Bild *arrow = Find(*board, "imgWeiter");
  EXPECT_TRUE(QTest::qWaitFor([&] { return arrow->Bildname() == "pfeil0"; }, 2000));
}

TEST_F(Messages, TheSecondPressOfADoubleClickCountsOnlyWhereTheFirstDid) {
  Click("imgNeuesSpiel");
  int cell = 1;
  while (board->LiesKachel(cell) != Kachel::Verdeckt)
    ++cell;
  const auto Send = [&](const QString &name, QEvent::Type press, quint64 time) {
    for (const auto type : {press, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, {5, 5}, {5, 5}, Qt::RightButton, Qt::RightButton, {});
      event.setTimestamp(time);
      QApplication::sendEvent(Find(*board, name), &event);
    }
    return board->LiesKachel(cell);
  };
  const QString name = "imgSar" + QString::number(cell);
  EXPECT_EQ(Send(name, QEvent::MouseButtonDblClick, 100'000), Kachel::Verdeckt);
  EXPECT_EQ(Send(name, QEvent::MouseButtonPress, 200'000), Kachel::Markiert);
  EXPECT_EQ(Send(name, QEvent::MouseButtonDblClick, 200'100), Kachel::Verdeckt);
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
}

using Options = WindowFixture;

TEST_F(Options, EachTierInEachModeBeginsItsGame) {
  for (int mode = 1; mode <= kModi; ++mode) {
    for (int tier = 0; tier < 6; ++tier) {
      const bool changed = mode != spiel.Spielmodus;
      WriteFile(DataFile("sarant.ini"), "other");
      for (const char *answer : {"N", "J"}) {
        spiel.Punkte = 0;
        Then<frmOptionen>([&](frmOptionen &window) {
          if (tier != 0)  // The first tier is chosen already, and its face takes no clicks.
            Click(Find(window, "imgLevel" + QString::number(tier)));
          if (changed)
            Click(Find(window, "imgModus" + QString::number(mode)));
          ThenAnswer(answer);
          Click(Find(window, "cmdNehmen"));
          EXPECT_FALSE(window.isVisible());
        });
        Click("imgEinstellungen");
        EXPECT_EQ(spiel.Punkte != 0, *answer == 'J');
      }
      EXPECT_EQ(Find(*board, "imgZeigeStart")->Bildname(), "");
      EXPECT_EQ(10 * spiel.Level + spiel.Spielmodus, 10 * (5 * tier + 1) + mode);
      // A mode that stays as it was is not written.
      EXPECT_EQ(ReadFile(DataFile("sarant.ini")).trimmed(),
                changed ? QByteArray::number(mode) : "other");
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
    board->BestenlistePruefen();
  }
  QStringList Lines() {
    return QString::fromLatin1(ReadFile(DataFile("sarant.txt"))).split("\r\n");
  }
  static QString Points(frmBeste &window, int row) {
    return window.findChildren<Zifferreihe *>().at(row)->Gezeigt();
  }
  static QLineEdit *Name(frmBeste &window, int row) {
    return window.findChildren<QLineEdit *>().at(row);
  }
  static void Ok(frmBeste &window) { Click(Find(window, "cmdEnde")); }
};

TEST_F(BestWindow, AnEntryStandsInItsPlaceAndBelowEqualOnes) {
  constexpr int kCases[][2] = {{13001, 4}, {14500, 2}, {99999, 0}, {99998, 1}, {15001, 2}};
  for (const auto &[points, place] : kCases) {
    Enter(points, [p = place, value = points](frmBeste &window) {
      EXPECT_EQ(Name(window, p)->selectedText(), "Spieler");
      EXPECT_EQ(Points(window, p), QString::number(value));
      EXPECT_TRUE(Find(window, "lblClear")->isHidden());
      Name(window, p)->insert("Käthe €");  // As an input method would; it replaces the selection.
      QShowEvent restored;                 // By the desktop, after the window was minimised.
      QSpontaneKeyEvent::setSpontaneous(&restored);
      qApp->notify(&window, &restored);
      for (const char *key : {"Return", "Esc", "Alt+A"})
        Press(window, key);
      ASSERT_TRUE(window.isVisible());
      Ok(window);
    });
    EXPECT_EQ(Lines().at(place), QString::fromLatin1("K\xe4the \x80"));
    EXPECT_EQ(Lines().at(place + 5), QString::number(points));
  }
  EXPECT_EQ(spiel.Bestenschwelle, 14500);
  EXPECT_EQ(Lines().size(), 11);
}

TEST_F(BestWindow, TheClosingBoxLosesTheEntryAndOnlyYesClears) {
  const QByteArray before = ReadFile(DataFile("sarant.txt"));
  Enter(20000, [](frmBeste &window) { window.close(); });
  EXPECT_EQ(ReadFile(DataFile("sarant.txt")), before);
  Enter(20000, [](frmBeste &window) {
    EXPECT_EQ(Points(window, 1), "15000");
    Name(window, 0)->clear();
    Ok(window);
  });
  EXPECT_EQ(Lines().first(), "Spieler");
  Window().close();  // Unloading brings the access key back.
  for (const char *answer : {"N", "J"}) {
    Window().ZeigeZumLesen();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    ThenAnswer(answer);
    Press(Window(), "Alt+A");
    EXPECT_EQ(Lines().first(), *answer == 'J' ? "Niemand" : "Spieler");
    EXPECT_EQ(spiel.Bestenschwelle, *answer == 'J' ? 13000 : 13500);
    EXPECT_TRUE(Window().isHidden());
  }
  Window().ZeigeZumLesen();  // A list of defaults is not cleared.
  EXPECT_TRUE(Find(Window(), "lblClear")->isHidden());
}

TEST_F(BestWindow, ForReadingAllIsLockedUntilAnEntryTakesTheWindow) {
  WriteFile(DataFile("sarant.txt"), "A\r\nB\r\nC\r\nD\r\nE\r\n1234567\r\n 42\r\nabc\r\n0\r\n7\r\n");
  Window().ZeigeZumLesen();
  const char *shown[] = {"1234567", "42", "", "", "7"};
  for (int row = 0; row < kBeste; ++row)
    EXPECT_EQ(Points(Window(), row), shown[row]);
  EXPECT_EQ(Window().pos(), board->frameGeometry().topLeft() - QPoint(7, 7));
  QTest::keyClicks(Name(Window(), 0), "x");
  EXPECT_EQ(Name(Window(), 0)->text(), "A");
  Enter(40, Ok);
  EXPECT_TRUE(Window().isHidden());
  EXPECT_EQ(Lines().at(2), "Spieler");
}

TEST_F(BestWindow, AShortListIsFullAfterOkAndWhatWasNotClearedIsTold) {
  const auto ThenMessage = [this](const Meldung &message) {
    Then<frmMsgOk>([message](frmMsgOk &window) {
      const QString text = QString::fromStdString(message.lblMeldung).remove('\r');
      EXPECT_EQ(Text(window, "lblMeldung"), text);
      window.close();
    });
  };
  WriteFile(DataFile("sarant.txt"), "");
  ThenMessage(MeldungBesteNichtGelesen(5));
  Window().ZeigeZumLesen();
  EXPECT_TRUE(Find(Window(), "lblClear")->isHidden());
  Ok(Window());
  Window().ZeigeZumLesen();
  QFile::remove(DataFile("sarant.txt"));
  QDir().mkdir(DataFile("sarant.txt"));
  ThenAnswer("J");
  ThenMessage(MeldungBesteNichtGespeichert);
  ThenMessage(MeldungBesteNichtGelesen(2));
  ASSERT_FALSE(Find(Window(), "lblClear")->isHidden());
  Click(Find(Window(), "lblClear"));
}

}  // namespace
