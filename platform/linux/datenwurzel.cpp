#include <QDir>
#include <QStandardPaths>

#include "platform/pfade.h"

namespace {

/// Qt takes the root for the home directory of a user who has none.
bool HatDatenordner() {
  return !qEnvironmentVariableIsEmpty("HOME") ||
         QDir::isAbsolutePath(qEnvironmentVariable("XDG_DATA_HOME"));
}

}  // namespace

QString Datenwurzel() {
  const QString wurzel = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return HatDatenordner() && QDir().mkpath(wurzel) ? wurzel : QString();
}
