#include "tests/fensterprobe.h"

#include <QApplication>
#include <QDir>

#include "shell/iniMain.h"

Fensterprobe::Fensterprobe() {
  spiel = {};
  QObject::connect(&takt, &QTimer::timeout, [this] { BedieneFenster(); });
  takt.start(1);
  spielfeld = std::make_unique<frmSpielfeld>();
  Main(*spielfeld, ordner.path());
}

Fensterprobe::~Fensterprobe() {
  EXPECT_TRUE(geplant.empty()) << "a window that was expected did not open";
  spielfeld.reset();
  for (QWidget *fenster : QApplication::topLevelWidgets())
    delete fenster;
}

void Fensterprobe::BedieneFenster() {
  QWidget *fenster = QApplication::activeModalWidget();
  std::erase_if(bedient, [](const auto &f) { return !f || !f->isVisible(); });
  if (!fenster || std::find(bedient.begin(), bedient.end(), fenster) != bedient.end())
    return;
  bedient.emplace_back(fenster);
  if (geplant.empty()) {
    ADD_FAILURE() << "unexpected window " << fenster->metaObject()->className();
    fenster->close();
    return;
  }
  const auto handlung = geplant.front();
  geplant.pop_front();
  // A timer does not tick while its own tick is handled, and the action may open the next window.
  QTimer::singleShot(0, fenster, [handlung, fenster] { handlung(fenster); });
}

int main(int argc, char *argv[]) {
  // Two screens side by side, of which the second one is twice as dense.
  const QTemporaryDir ordner;
  QDir::setCurrent(ordner.path());  // A full path has a colon under Windows, which ends the name.
  Lege("schirme", R"({"screens": [
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
