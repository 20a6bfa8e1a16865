// Help pages on a desktop that may have nothing to show them.
#include <QMessageBox>

#include "dialogs/frmBeste.h"
#include "tests/fensterprobe.h"

namespace {

TEST_F(Fensterprobe, SagtWoDieHilfeLiegtWennNichtsSieOeffnet) {
  const QByteArray suchpfad = qgetenv("PATH");
  const QTemporaryDir programme;
  const QString oeffner = programme.filePath("xdg-open");
  qputenv("PATH", programme.path().toUtf8());
  frmBeste &fenster = spielfeld->Bestenfenster();
  fenster.ZeigeZumLesen();
  for (const char *inhalt : {"", "#!/bin/sh\nexit 3\n"}) {
    if (*inhalt) {
      Lege(oeffner, inhalt);
      QFile::setPermissions(oeffner, QFile::ReadOwner | QFile::ExeOwner);
    }
    bool gesagt = false;
    Dann<QMessageBox>([&](QMessageBox &meldung) {
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
