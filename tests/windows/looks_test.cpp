// How the windows look: the same as the approved pictures, on each Debian.
#include <QIcon>
#include <QPainter>
#include <cstdlib>

#include "controls/zifferreihe.h"
#include "core/befehle.h"
#include "core/meldungen.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmHintergrund.h"
#include "dialogs/frmOptionen.h"
#include "shell/spielbrett.h"
#include "tests/window_fixture.h"

namespace {

class Looks : public WindowFixture {
 protected:
  Looks() { QApplication::setCursorFlashTime(0); }

  /// The window must look like the approved picture of this name and its scale.
  static void Expect(const QString &name, const QPixmap &picture) {
    const auto scale = QString("@%1x.jpg").arg(picture.devicePixelRatio() * Massstab(), 0, 'g', 2);
    const QString seen = TOLD + name + scale, approved = APPROVED + name + scale;
    picture.save(seen, nullptr, 40);
    EXPECT_EQ(std::system(qPrintable("LC_ALL=C " COMPARE " " + approved + " " + seen)), 0)
        << "to approve what is seen now: cp " << seen << " " << APPROVED;
  }
  static void Focus(QWidget *element) {
    element->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(element->window()));
    element->setFocus();
  }
};

TEST_F(Looks, OfTheMainWindow) {
  WriteFile(DataFile("sarant.ini"), "1");
  Main(*board, folder.path());
  for (const Pfeil arrow : {Pfeil::Start, Pfeil::Weiter})
    board->StartePfeil(arrow, 1'000'000);
  board->ZeigePfeil(Pfeil::Weiter, 1);
  board->Zeige(Bedienung::cmdWiederholen, true);
  Focus(board->findChild<Zifferreihe *>());
  QTest::mousePress(Find(*board, "lblInfo"), Qt::LeftButton);
  Expect("warten", board->grab());
  QTest::mouseRelease(Find(*board, "lblInfo"), Qt::LeftButton, {}, QPoint(-9, 0));
  board->ZeigePfeil(Pfeil::Start, 1);
  board->ZeigePfeil(Pfeil::Weiter, 0);
  for (int n = 1; n <= kZellen; ++n) {
    board->SetzeKachel(n, static_cast<Kachel>(n % 9 % 4));
    board->SetzeZahl(n, n % 11);
  }
  int digit = 0;
  for (const auto &[row, places] : {std::pair(Panelreihe::Punkte, 5),
                                    {Panelreihe::Levelpunkte, 3},
                                    {Panelreihe::Fehlversuche, 2},
                                    {Panelreihe::Level, 2}})
    for (int place = 0; place < places; ++place)
      board->SetzeZiffer(row, place, Ziffernfarbe::Rot, digit++ % 11);
  for (const auto button : {Bedienung::imgNextLevel, Bedienung::imgSpeichern, Bedienung::imgOeffnen,
                            Bedienung::imgBester})
    board->Zeige(button, true);
  board->Zeige(Bedienung::cmdWiederholen, false);
  board->VerbergeModuswahl();
  board->FaerbeModustext();
  Focus(Find(*board, "imgSar2"));
  auto *tiles = board->findChild<Spielbrett *>();
  tiles->Licht().Setze(Brettlicht::Stand::Spiel);
  QTest::mousePress(Find(*board, "imgEnde"), Qt::LeftButton);
  Expect("spielfeld", board->grab());
  board->Zeige(Bedienung::imgNextLevel, true);
  Expect("gewonnen", tiles->grab(QRect(158, 158, 235, 235)));
}

TEST_F(Looks, OfTheOtherWindows) {
  Expect("symbol", QApplication::windowIcon().pixmap(64));
  const frmHintergrund cover(board.get());
  QPixmap picture(cover.size());
  QPainter painter(&picture);
  cover.Zeichne(painter);
  painter.end();
  Expect("schreibtisch", picture.scaledToWidth(320));
  Then<frmOptionen>([](frmOptionen &window) {
    Click(Find(window, "imgLevel4"));
    Expect("optionen", window.grab());
    window.close();
  });
  Click("imgEinstellungen");
  board->Bestenfenster();  // Reads the list.
  spiel.Beste.lstPunkte = {"9876543", "21", "0", "", "100000"};
  std::tie(spiel.Beste.BestenEintrag, spiel.Beste.BestenPlatz) = std::tuple(true, 1);
  Then<frmBeste>([](frmBeste &window) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Expect("beste", window.grab());
    window.close();
  });
  board->ZeigeBesteneintrag();
  Then<frmMsgJa>([](frmMsgJa &window) {
    Focus(Find(window, "lblJa"));
    Expect("frage", window.grab());
    window.close();
  });
  spiel.Datenordner = "/heim/" + std::string(900, 'x') + "/kammern";
  board->Frage(FrageSucheSpielstand());  // A path that is too long is shortened.
  Then<frmMsgOk>([](frmMsgOk &window) {
    Expect("meldung", window.grab());
    window.close();
  });
  board->Melde(MeldungFalscherDateityp("<b>" + std::string(60, 'x') + ".txt"));  // Wrapped.
}

}  // namespace
