#include "platform/dateidialog.h"

#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QLocale>
#include <QSettings>

namespace {

/// Icons told from the kind alone. Qt would read each file, and wait forever at an endless one.
class Dateisymbole : public QFileIconProvider {
 public:
  QIcon icon(const QFileInfo &datei) const override {
    return QFileIconProvider::icon(datei.isDir() ? Folder : File);
  }
  QString type(const QFileInfo &datei) const override { return datei.isDir() ? "Ordner" : "Datei"; }
};

/// Sizes and dates in German; Qt would write them in the language of the machine.
class DeutscheSpalten : public QIdentityProxyModel {
 public:
  /// Belongs to the dialog, and so goes after the dialog's own model, which reads the icons.
  explicit DeutscheSpalten(QFileDialog &dialog) : QIdentityProxyModel(&dialog) {
    dialog.setIconProvider(&symbole_);
    dialog.setProxyModel(this);
  }

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

  Dateisymbole symbole_;
};

}  // namespace

void MerkeNichts() {
  // Qt would keep a history in the player's configuration. There it finds no place for one.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

bool ZeigeDateidialog(QFileDialog &dialog) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  new DeutscheSpalten(dialog);
  return dialog.exec() == QDialog::Accepted;
}
