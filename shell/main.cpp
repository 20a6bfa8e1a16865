#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "controls/masse.h"
#include "platform/fenstersystem.h"
#include "platform/system.h"
#include "shell/frmSpielfeld.h"
#include "shell/start.h"

namespace {

/// Without a screen, prints one line instead of Qt's messages and its abort.
void SagWasFehlt(QtMsgType art, const QMessageLogContext &, const QString &) {
  if (art != QtFatalMsg)
    return;
  std::fprintf(stderr, "%s\n", kOhneBildschirm);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char *argv[]) {
  argc = 1;  // The game has no command line; Qt would act on options of its own.
  qInstallMessageHandler(SagWasFehlt);
  QApplication anwendung(argc, argv);
  qInstallMessageHandler(nullptr);
  StelleMassstab(Schrumpffaktor());
  RichteAnwendungEin(anwendung);
  frmSpielfeld fenster;
  Main(fenster, Datenwurzel());
  return QApplication::exec();
}
