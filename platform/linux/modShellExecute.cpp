#include "platform/modShellExecute.h"

#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QProcess>

namespace {

/// On some desktops the opener stays until its viewer ends, and then tells how that ended. Only a
/// failure that comes sooner means that there is none.
constexpr qint64 kSuchdauer = 10'000;  // milliseconds

void SagWoEsLiegt(const QString &pfad) {
  auto *fenster =
      new QMessageBox(QMessageBox::Information, "Glanzgrube",
                      "Auf diesem Rechner öffnet kein Programm die Hilfe. Sie liegt hier:\n" + pfad,
                      QMessageBox::Ok, QApplication::activeWindow());
  fenster->setAttribute(Qt::WA_DeleteOnClose);
  fenster->open();
}

}  // namespace

void OeffneDokument(const QString &pfad) {
  auto *oeffner = new QProcess;  // Without an owner, whose end would be that of an open viewer.
  oeffner->setStandardOutputFile(QProcess::nullDevice());
  oeffner->setStandardErrorFile(QProcess::nullDevice());
  oeffner->setChildProcessModifier([] { setsid(); });  // It outlives the game's terminal, too.
  QElapsedTimer seit;
  seit.start();
  QObject::connect(oeffner, &QProcess::finished, oeffner, [=](int ergebnis) {
    oeffner->deleteLater();
    if (ergebnis != 0 && seit.elapsed() < kSuchdauer)
      SagWoEsLiegt(pfad);
  });
  QObject::connect(oeffner, &QProcess::errorOccurred, oeffner, [=](QProcess::ProcessError fehler) {
    if (fehler != QProcess::FailedToStart)
      return;
    oeffner->deleteLater();
    SagWoEsLiegt(pfad);
  });
  oeffner->start("xdg-open", {pfad});
}
