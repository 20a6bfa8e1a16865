#include "tests/window_fixture.h"

#include <QApplication>
#include <QDir>

#include "shell/iniMain.h"

WindowFixture::WindowFixture() {
  spiel = {};
  QObject::connect(&takt, &QTimer::timeout, [this] { HandleWindow(); });
  takt.start(1);
  board = std::make_unique<frmSpielfeld>();
  Main(*board, folder.path());
}

WindowFixture::~WindowFixture() {
  EXPECT_TRUE(planned.empty()) << "a window that was expected did not open";
  board.reset();
  for (QWidget *fenster : QApplication::topLevelWidgets())
    delete fenster;
}

void WindowFixture::HandleWindow() {
  QWidget *fenster = QApplication::activeModalWidget();
  std::erase_if(handled, [](const auto &f) { return !f || !f->isVisible(); });
  if (!fenster || std::find(handled.begin(), handled.end(), fenster) != handled.end())
    return;
  handled.emplace_back(fenster);
  if (planned.empty()) {
    ADD_FAILURE() << "unexpected window " << fenster->metaObject()->className();
    fenster->close();
    return;
  }
  const auto action = planned.front();
  planned.pop_front();
  // A timer does not tick while its own tick is handled, and the action may open the next window.
  QTimer::singleShot(0, fenster, [action, fenster] { action(fenster); });
}

int main(int argc, char *argv[]) {
  // Two screens side by side, of which the second one is twice as dense.
  const QTemporaryDir folder;
  QDir::setCurrent(folder.path());  // A full path has a colon under Windows, which ends the name.
  WriteFile("schirme", R"({"screens": [
    {"name": "1", "x": 0, "y": 0, "width": 1280, "height": 1024, "dpr": 1},
    {"name": "2", "x": 1280, "y": 0, "width": 1280, "height": 1024, "dpr": 2}]})");
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=schirme");
  qputenv("LC_ALL", "fr_FR.UTF-8");  // Any language but German.
  testing::InitGoogleTest(&argc, argv);
  QApplication anwendung(argc, argv);
  QDir::setCurrent(QDir::rootPath());
  RichteAnwendungEin(anwendung);
  return RUN_ALL_TESTS();
}
