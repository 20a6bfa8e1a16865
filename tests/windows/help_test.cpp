// Help pages on a desktop that may have nothing to show them.
#include <QMessageBox>

#include "dialogs/frmBeste.h"
#include "tests/window_fixture.h"

namespace {

TEST_F(WindowFixture, SagtWoDieHilfeLiegtWennNichtsSieOeffnet) {
  const QByteArray suchpfad = qgetenv("PATH");
  const QTemporaryDir programme;
  const QString oeffner = programme.filePath("xdg-open");
  qputenv("PATH", programme.path().toUtf8());
  frmBeste &fenster = board->Bestenfenster();
  fenster.ZeigeZumLesen();
  for (const char *inhalt : {"", "#!/bin/sh\nexit 3\n"}) {
    if (*inhalt) {
      WriteFile(oeffner, inhalt);
      QFile::setPermissions(oeffner, QFile::ReadOwner | QFile::ExeOwner);
    }
    bool gesagt = false;
    Then<QMessageBox>([&](QMessageBox &meldung) {
      gesagt = meldung.text().endsWith("/Bestespieler.pdf");
      meldung.close();
    });
    QKeyEvent taste(QEvent::KeyPress, Qt::Key_F1, {});
    QApplication::sendEvent(&fenster, &taste);
    EXPECT_TRUE(QTest::qWaitFor([&] { return gesagt; })) << inhalt;
  }
  qputenv("PATH", suchpfad);
}

}  // namespace
