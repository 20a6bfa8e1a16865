#include "platform/dateidialog.h"

#include <QDialogButtonBox>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSettings>

#include "platform/pfade.h"

namespace {

/// Icons by kind alone. Qt would read each file, and wait for ever at an endless one.
class Dateisymbole : public QFileIconProvider {
 public:
  QIcon icon(const QFileInfo &datei) const override {
    return QFileIconProvider::icon(datei.isDir() ? Folder : File);
  }
  QString type(const QFileInfo &datei) const override { return datei.isDir() ? "Ordner" : "Datei"; }
};

/// Sizes and dates in German. QFileSystemModel writes them in the language of the machine, and no
/// setting of Qt changes that.
class DeutscheSpalten : public QIdentityProxyModel {
 public:
  /// The dialog's model, which reads the icons, is destroyed before this child of the dialog.
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

/// Takes what stands in the name field as one name. Qt takes quotes for a list of names and a
/// leading ":" for a resource of the program, and ignores a name that is too long without a word.
class Dateidialog : public QFileDialog {
 public:
  Dateidialog(AcceptMode modus, QWidget *besitzer, const QString &titel, const QString &ordner,
              const QString &filter)
      : QFileDialog(besitzer, titel, ordner, filter) {
    setOptions(DontUseNativeDialog | DontConfirmOverwrite);
    setAcceptMode(modus);
    setFileMode(AnyFile);
    setWindowModality(Qt::WindowModal);
    new DeutscheSpalten(*this);
    feld_ = findChild<QLineEdit *>("fileNameEdit");
    auto *knopf = findChild<QDialogButtonBox *>()->button(
        modus == AcceptOpen ? QDialogButtonBox::Open : QDialogButtonBox::Save);
    connect(feld_, &QLineEdit::textChanged, knopf,
            [knopf](const QString &name) { knopf->setEnabled(!name.isEmpty()); });
  }

  QString Pfad() const {
    const QString name = feld_->text();
    if (!name.contains(u'"') && !name.startsWith(u':'))
      return selectedFiles().value(0);
    return name.startsWith(u'/') ? name : MitBackslash(directory().path()) + name;
  }

 private:
  void accept() override {
    if (QFileInfo(Pfad()).isDir())
      setDirectory(Pfad());
    else
      done(Accepted);
  }

  QLineEdit *feld_;
};

}  // namespace

QString WaehleSpieldatei(QFileDialog::AcceptMode modus, QWidget *besitzer, const QString &titel,
                         const QString &ordner, const QString &filter) {
  // Qt keeps a history of folders in QtProject.conf. A path below /dev/null cannot be written.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
  Dateidialog dialog(modus, besitzer, titel, ordner, filter);
  return dialog.exec() == QDialog::Accepted ? dialog.Pfad() : QString();
}
