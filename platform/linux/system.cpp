#include "platform/system.h"

#include <unistd.h>

#include <QDesktopServices>
#include <QDir>
#include <QKeyEvent>
#include <QUrl>

QString Datenwurzel() {
  // A relative path is ignored: it would depend on the working directory. QStandardPaths takes it.
  const QString heim = qEnvironmentVariable("HOME");
  QString wurzel = qEnvironmentVariable("XDG_DATA_HOME");
  if (!QDir::isAbsolutePath(wurzel))
    wurzel = QDir::isAbsolutePath(heim) ? heim + "/.local/share" : QString();
  wurzel = QDir::cleanPath(wurzel);
  return !wurzel.isEmpty() && QDir().mkpath(wurzel) ? wurzel : QString();
}

void OeffneDokument(const QString &pfad) { QDesktopServices::openUrl(QUrl::fromLocalFile(pfad)); }

bool Synchronisiere(int datei) { return fsync(datei) == 0; }

unsigned Tastenplatz(const QKeyEvent &taste) {
  constexpr unsigned kVersatz = 8;  // X11 adds it to a scan code, and Wayland does the same.
  return taste.nativeScanCode() - kVersatz;
}
