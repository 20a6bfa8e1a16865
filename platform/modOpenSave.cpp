#include "platform/modOpenSave.h"

#include <QFileInfo>

#include "platform/dateidialog.h"
#include "platform/pfade.h"

namespace {

const QString kFilter = "Spieldateien (*" + kSpielendung + ")";

}  // namespace

QString DateiOeffnenDialog(QWidget *besitzer, const QString &ordner) {
  return WaehleSpieldatei(QFileDialog::AcceptOpen, besitzer, "Spieldatei öffnen", ordner, kFilter)
      .trimmed();
}

QString DateiSpeichernDialog(QWidget *besitzer, const QString &ordner) {
  const QString programm = Ressourcenordner();
  const QString wurzel = programm.left(programm.indexOf(u'/') + 1);
  return WaehleSpieldatei(QFileDialog::AcceptSave, besitzer, "Spieldatei speichern unter",
                          ordner.isEmpty() ? wurzel : ordner, kFilter)
      .trimmed();
}

QString Dateititel(const QString &pfad) { return QFileInfo(pfad).fileName(); }
