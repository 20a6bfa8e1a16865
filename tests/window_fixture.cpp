#include "tests/window_fixture.h"

#include <QApplication>
#include <QDir>

#include "shell/start.h"

WindowFixture::WindowFixture() {
  spiel = {};
  QObject::connect(&clock, &QTimer::timeout, [this] { HandleWindow(); });
  clock.start(1);
  board = std::make_unique<frmSpielfeld>();
  Main(*board, folder.path());
}

WindowFixture::~WindowFixture() {
  EXPECT_TRUE(planned.empty()) << "a window that was expected did not open";
  board.reset();
  for (QWidget *window : QApplication::topLevelWidgets())
    delete window;
}

void WindowFixture::HandleWindow() {
  QWidget *window = QApplication::activeModalWidget();
  std::erase_if(handled, [](const auto &w) { return !w || !w->isVisible(); });
  if (!window || std::find(handled.begin(), handled.end(), window) != handled.end())
    return;
  handled.emplace_back(window);
  if (planned.empty()) {
    ADD_FAILURE() << "unexpected window " << window->metaObject()->className();
    window->close();
    return;
  }
  const auto action = planned.front();
  planned.pop_front();
  // A timer does not tick while its own tick is handled, and the action may open the next window.
  QTimer::singleShot(0, window, [action, window] { action(window); });
}

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
