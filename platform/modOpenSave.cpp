#include "platform/modOpenSave.h"

#include <QFileDialog>
#include <QFileInfo>

#include "platform/dateidialog.h"
#include "platform/pfade.h"

namespace {

QString Dateidialog(QWidget *besitzer, const QString &titel, QFileDialog::AcceptMode modus) {
  // Qt takes a missing folder for the name of a file to be chosen.
  const QString ordner = QFileInfo(Dialogordner).isDir() ? Dialogordner : QString();
  QFileDialog dialog(besitzer, titel, ordner, "Spieldateien (*.sar)");
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setAcceptMode(modus);
  dialog.setFileMode(QFileDialog::AnyFile);
  return ZeigeDateidialog(dialog) ? dialog.selectedFiles().value(0).trimmed() : QString();
}

}  // namespace

QString DateiOeffnenDialog(QWidget *besitzer) {
  return Dateidialog(besitzer, "Spieldatei öffnen", QFileDialog::AcceptOpen);
}

QString DateiSpeichernDialog(QWidget *besitzer) {
  if (Dialogordner.isEmpty()) {
    const QString ordner = Programmordner();
    Dialogordner = ordner.left(ordner.indexOf(u'/') + 1);
  }
  return Dateidialog(besitzer, "Spieldatei speichern unter", QFileDialog::AcceptSave);
}

QString Dateititel(const QString &pfad) {
  return QFileInfo(pfad).fileName();
}
