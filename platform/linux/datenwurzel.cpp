#include "platform/datenwurzel.h"

#include <QDir>

QString Datenwurzel() {
  // Qt would take a relative path as it stands, and so a folder that depends on where the program
  // was started.
  const QString heim = qEnvironmentVariable("HOME");
  QString wurzel = qEnvironmentVariable("XDG_DATA_HOME");
  if (!QDir::isAbsolutePath(wurzel))
    wurzel = QDir::isAbsolutePath(heim) ? heim + "/.local/share" : QString();
  wurzel = QDir::cleanPath(wurzel);
  return !wurzel.isEmpty() && QDir().mkpath(wurzel) ? wurzel : QString();
}
