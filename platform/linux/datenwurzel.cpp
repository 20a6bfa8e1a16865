#include "platform/datenwurzel.h"

#include <QDir>

QString Datenwurzel() {
  // A relative path is ignored: it would depend on the working directory. QStandardPaths takes it.
  const QString heim = qEnvironmentVariable("HOME");
  QString wurzel = qEnvironmentVariable("XDG_DATA_HOME");
  if (!QDir::isAbsolutePath(wurzel))
    wurzel = QDir::isAbsolutePath(heim) ? heim + "/.local/share" : QString();
  wurzel = QDir::cleanPath(wurzel);
  return !wurzel.isEmpty() && QDir().mkpath(wurzel) ? wurzel : QString();
}
