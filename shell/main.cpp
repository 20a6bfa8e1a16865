#include <QApplication>

#include "shell/frmSpielfeld.h"
#include "shell/iniMain.h"

int main(int argc, char *argv[]) {
  QApplication anwendung(argc, argv);
  RichteAnwendungEin(anwendung);
  frmSpielfeld fenster;
  Main(fenster);
  return QApplication::exec();
}
