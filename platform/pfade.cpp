#include "platform/pfade.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString MitBackslash(const QString &pfad) {
  if (pfad.isEmpty() || pfad.endsWith(u'/') || pfad.endsWith(QDir::separator()))
    return pfad;
  return pfad + QDir::separator();
}

QString Ressourcenordner() {
  const QDir ordner(QCoreApplication::applicationDirPath());
  const QString gemeinsam = QDir::cleanPath(ordner.filePath("../share/glanzgrube"));
  const bool installiert = ordner.dirName() == "bin" || ordner.dirName() == "games";
  return installiert && QFileInfo(gemeinsam).isDir() ? gemeinsam : ordner.path();
}
