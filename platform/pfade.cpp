#include "platform/pfade.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString MitBackslash(const QString &pfad) {
  if (pfad.isEmpty() || pfad.endsWith(u'/') || pfad.endsWith(QDir::separator()))
    return pfad;
  return pfad + QDir::separator();
}

QString Programmordner() {
  const QDir ordner(QCoreApplication::applicationDirPath());
  const QString gemeinsam = QDir::cleanPath(ordner.filePath("../share/glanzgrube"));
  const bool installiert = ordner.dirName() == "bin" || ordner.dirName() == "games";
  return installiert && QFileInfo(gemeinsam).isDir() ? gemeinsam : ordner.path();
}

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
