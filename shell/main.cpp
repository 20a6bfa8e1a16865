#include <QApplication>
#include <memory>

#include "shell/frmSpielfeld.h"
#include "shell/iniMain.h"

int main(int argc, char *argv[]) {
  auto anwendung = std::make_unique<QApplication>(argc, argv);
  const double faktor = Schrumpffaktor();
  if (faktor < 1) {
    // Qt reads its scale once, when an application begins.
    anwendung.reset();
    StelleMassstabEin(faktor);
    anwendung = std::make_unique<QApplication>(argc, argv);
  }
  RichteAnwendungEin(*anwendung);
  frmSpielfeld fenster;
  Main(fenster);
  return QApplication::exec();
}
