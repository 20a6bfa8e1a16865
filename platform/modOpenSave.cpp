#include "platform/modOpenSave.h"

#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QLocale>

#include "platform/pfade.h"

namespace {

/// Sizes and dates in German; Qt would write them in the language of the machine.
class DeutscheSpalten : public QIdentityProxyModel {
 public:
  explicit DeutscheSpalten(QObject *besitzer) : QIdentityProxyModel(besitzer) {}

  QVariant data(const QModelIndex &index, int rolle) const override {
    const auto *dateien = qobject_cast<const QFileSystemModel *>(sourceModel());
    const QModelIndex datei = mapToSource(index);
    const QLocale deutsch(QLocale::German);
    if (rolle == Qt::DisplayRole && index.column() == kGroesse && !dateien->isDir(datei))
      return deutsch.formattedDataSize(dateien->size(datei));
    if (rolle == Qt::DisplayRole && index.column() == kDatum)
      return deutsch.toString(dateien->lastModified(datei), QLocale::ShortFormat);
    return QIdentityProxyModel::data(index, rolle);
  }

 private:
  static constexpr int kGroesse = 1;  // Columns of QFileSystemModel.
  static constexpr int kDatum = 3;
};

/// Icons told from the kind alone. Qt would read each file, and wait forever at an endless one.
class Dateisymbole : public QFileIconProvider {
 public:
  QIcon icon(const QFileInfo &datei) const override {
    return QFileIconProvider::icon(datei.isDir() ? Folder : File);
  }
  QString type(const QFileInfo &datei) const override { return datei.isDir() ? "Ordner" : "Datei"; }
};

QString Dateidialog(QWidget *besitzer, const QString &titel, QFileDialog::AcceptMode modus) {
  // Qt takes a missing folder for the name of a file to be chosen.
  const QString ordner = QFileInfo(Dialogordner).isDir() ? Dialogordner : QString();
  Dateisymbole symbole;
  QFileDialog dialog(besitzer, titel, ordner, "Spieldateien (*.sar)");
  dialog.setIconProvider(&symbole);
  dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
  dialog.setProxyModel(new DeutscheSpalten(&dialog));
  dialog.setAcceptMode(modus);
  dialog.setFileMode(QFileDialog::AnyFile);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0).trimmed() : QString();
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
