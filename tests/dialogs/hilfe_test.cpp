// Help pages on a desktop that may have nothing to show them.
#include <QMessageBox>

#include "dialogs/frmBeste.h"
#include "tests/fensterprobe.h"

namespace {

TEST_F(Fensterprobe, SagtWoDieHilfeLiegtWennNichtsSieOeffnet) {
  const QByteArray suchpfad = qgetenv("PATH");
  frmBeste &fenster = spielfeld->Bestenfenster();
  ASSERT_TRUE(QTest::qWaitForWindowActive(spielfeld.get()));
  for (const QByteArray oeffner : {"exit 0", "exit 3", ""}) {
    fenster.ZeigeZumLesen();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
    const QTemporaryDir programme;
    if (!oeffner.isEmpty()) {
      Lege(programme.filePath("xdg-open"), "#!/bin/sh\n" + oeffner);
      QFile::setPermissions(programme.filePath("xdg-open"), QFile::ReadOwner | QFile::ExeOwner);
    }
    qputenv("PATH", programme.path().toUtf8());
    const bool geht = oeffner == "exit 0";
    bool gesagt = false;
    if (!geht)
      Dann<QMessageBox>([&](QMessageBox &meldung) {
        gesagt = meldung.text().endsWith("/Bestespieler.pdf");
        meldung.close();
      });
    Druecke(fenster, "F1");
    EXPECT_NE(QTest::qWaitFor([&] { return gesagt; }, geht ? 300 : 5000), geht) << oeffner.data();
  }
  qputenv("PATH", suchpfad);
}

}  // namespace
