#include "platform/modOpenSave.h"

#include <QFileDialog>
#include <QFileInfo>

#include "platform/dateidialog.h"
#include "platform/pfade.h"

namespace {

/// The folder, or the nearest one above it that has not gone. Qt would take a missing folder for
/// the name of a file to be chosen.
QString NaechsterVorhandener(const QString &ordner) {
  QString vorhanden = ordner;
  while (!vorhanden.isEmpty() && !QFileInfo(vorhanden).isDir() &&
         vorhanden != QFileInfo(vorhanden).path())
    vorhanden = QFileInfo(vorhanden).path();
  return vorhanden;
}

QString Laufwerkswurzel() {
  const QString ordner = Programmordner();
  return ordner.left(ordner.indexOf(u'/') + 1);
}

QString Dateidialog(QWidget *besitzer, const QString &titel, const QString &ordner,
                    QFileDialog::AcceptMode modus) {
  MerkeNichts();
  QFileDialog dialog(besitzer, titel, NaechsterVorhandener(ordner), "Spieldateien (*.sar)");
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setAcceptMode(modus);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setWindowModality(Qt::WindowModal);
  if (!ZeigeDateidialog(dialog))
    return {};
  const QString name = dialog.selectedFiles().value(0).trimmed();
  // Qt takes such a name for a resource of the program.
  return name.startsWith(u':') ? MitBackslash(dialog.directory().path()) + name : name;
}

}  // namespace

QString DateiOeffnenDialog(QWidget *besitzer, const QString &ordner) {
  return Dateidialog(besitzer, "Spieldatei öffnen", ordner, QFileDialog::AcceptOpen);
}

QString DateiSpeichernDialog(QWidget *besitzer, const QString &ordner) {
  return Dateidialog(besitzer, "Spieldatei speichern unter",
                     ordner.isEmpty() ? Laufwerkswurzel() : ordner, QFileDialog::AcceptSave);
}

QString Dateititel(const QString &pfad) {
  return QFileInfo(pfad).fileName();
}
