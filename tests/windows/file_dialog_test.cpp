// Names that Qt's own file dialog does not take as they stand.
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

#include "persistence/modDateiHandling.h"
#include "tests/window_fixture.h"

namespace {

TEST_F(WindowFixture, WasImNamensfeldStehtIstEinName) {
  const auto ThenSaveAs = [&](const QString &name) {
    Then<QFileDialog>([name](QFileDialog &dialog) {
      QTest::keyClicks(Find<QLineEdit>(dialog, "fileNameEdit"), name);
      Click(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save));
    });
  };
  board->Zeige(Bedienung::imgSpeichern, true);
  QDir(DataFile("")).removeRecursively();
  for (const char *name : {".sar", "\".sar", "Spiel \"Anna\".sar", ":Anna.sar"}) {
    ThenSaveAs(name);
    Click("imgSpeichern");
    EXPECT_TRUE(QFile::exists(DataFile(name))) << name;
    EXPECT_TRUE(SpielstandVorhanden());
  }
  QString told;
  ThenSaveAs(QString(256, 'x'));
  Then<Meldefenster>([&](Meldefenster &fenster) {
    told = Text(fenster, "lblTitel");
    fenster.close();
  });
  Click("imgSpeichern");
  EXPECT_TRUE(told.endsWith("8")) << told.toStdString();
}

}  // namespace
