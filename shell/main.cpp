#include <QApplication>

#include "dialogs/bilder.h"
#include "dialogs/masse.h"
#include "platform/pfade.h"
#include "shell/frmSpielfeld.h"
#include "shell/iniMain.h"

int main(int argc, char *argv[]) {
  QApplication anwendung(argc, argv);
  StelleMassstab(Schrumpffaktor());
  BeginneVorarbeit("spielfeld");
  RichteAnwendungEin(anwendung);
  frmSpielfeld fenster;
  Main(fenster, Datenwurzel());
  return QApplication::exec();
}
