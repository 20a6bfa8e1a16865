#include "platform/modShellExecute.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QStandardPaths>
#include <QUrl>

void OeffneDokument(const QString &pfad) {
  // Without the desktop's opener Qt would only complain on standard error.
  if (QStandardPaths::findExecutable("xdg-open").isEmpty() ||
      !QDesktopServices::openUrl(QUrl::fromLocalFile(pfad)))
    QMessageBox::information(
        QApplication::activeWindow(), "Glanzgrube",
        "Auf diesem Rechner öffnet kein Programm die Hilfe. Sie liegt hier:\n" + pfad);
}
