// The window of the best list, played by mouse and keyboard.
#include <QtTest/qtestspontaneevent.h>
#include <QDir>
#include <QLineEdit>

#include "controls/zifferreihe.h"
#include "dialogs/frmBeste.h"
#include "tests/window_fixture.h"

namespace {

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
    told << what
         << " | file: " << QString::fromLatin1(ReadFile(DataFile("sarant.txt"))).simplified()
         << " | least points: " << spiel.Bestenschwelle;
    for (int row = 0; row < kBeste && Window().isVisible(); ++row)
      told << (row == 0 ? "\n    window: " : " | ") << Name(row)->text()
           << (Name(row)->cursorPosition() == 0 ? " "
                                                : " (selected: " + Name(row)->selectedText() + ") ")
           << Window().findChildren<Zifferreihe *>().at(row)->Gezeigt();
    told << (Find(Window(), "lblClear")->isVisible() ? " | may be cleared\n" : "\n");
  }
};

TEST_F(BestWindow, TakesTheNameAndOnlyYesClearsTheList) {
  Enter(14500, [](frmBeste &window) { window.close(); });
  Tell("closed");
  Enter(14500, [this](frmBeste &window) {
    Tell("entry");
    Name(2)->insert("Käthe Ö");  // As an input method would; it replaces the selection.
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

TEST_F(BestWindow, AShortListIsFilledByAnEntryAndWhatWasNotClearedIsTold) {
  WriteFile(DataFile("sarant.txt"), "A\r\nB\r\n");
  ThenAnswer("Esc");
  Window().ZeigeZumLesen();
  Tell("short");
  Ok();
  Enter(40, [this](frmBeste &) { Ok(); });
  Window().ZeigeZumLesen();
  Tell("full");
  QFile::remove(DataFile("sarant.txt"));
  QDir().mkdir(DataFile("sarant.txt"));
  for (const char *key : {"J", "Esc", "Esc"})  // It could be neither written nor read.
    ThenAnswer(key);
  Click(Find(Window(), "lblClear"));
}

}  // namespace
