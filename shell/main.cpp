#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "controls/masse.h"
#include "platform/datenwurzel.h"
#include "platform/fenstersystem.h"
#include "shell/frmSpielfeld.h"
#include "shell/start.h"

namespace {

QtMessageHandler vorher = nullptr;

/// Qt gives up when it finds no screen. A player shall read what is missing, and nothing of the
/// ways that Qt has tried, neither then nor when one of them leads to a screen.
void SagWasFehlt(QtMsgType art, const QMessageLogContext &ort, const QString &text) {
  if (art == QtFatalMsg) {
    std::fprintf(stderr, "%s\n", kOhneBildschirm);
    std::_Exit(EXIT_FAILURE);
  }
  if (!QByteArray(ort.category).startsWith("qt.qpa."))
    vorher(art, ort, text);
}

}  // namespace

int main(int argc, char *argv[]) {
  argc = 1;  // The game has no command line; Qt would act on options of its own.
  vorher = qInstallMessageHandler(SagWasFehlt);
  QApplication anwendung(argc, argv);
  qInstallMessageHandler(nullptr);
  StelleMassstab(Schrumpffaktor());
  RichteAnwendungEin(anwendung);
  frmSpielfeld fenster;
  Main(fenster, Datenwurzel());
  return QApplication::exec();
}
