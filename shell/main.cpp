#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "controls/masse.h"
#include "platform/datenwurzel.h"
#include "shell/frmSpielfeld.h"
#include "shell/iniMain.h"

namespace {

QtMessageHandler vorher = nullptr;

/// Qt gives up when it finds no screen. A player shall read what is missing.
void SagWasFehlt(QtMsgType art, const QMessageLogContext &ort, const QString &text) {
  if (art != QtFatalMsg)
    return vorher(art, ort, text);
  std::fputs(
      "Glanzgrube findet keinen Bildschirm. In einer Wayland-Sitzung braucht das Spiel das Paket "
      "»qt6-wayland« oder »xwayland«.\n",
      stderr);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char *argv[]) {
  vorher = qInstallMessageHandler(SagWasFehlt);
  QApplication anwendung(argc, argv);
  qInstallMessageHandler(nullptr);
  StelleMassstab(Schrumpffaktor());
  RichteAnwendungEin(anwendung);
  frmSpielfeld fenster;
  Main(fenster, Datenwurzel());
  return QApplication::exec();
}
