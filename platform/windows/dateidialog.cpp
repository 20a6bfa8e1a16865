#include "platform/dateidialog.h"

QString WaehleSpieldatei(QFileDialog::AcceptMode modus, QWidget *besitzer, const QString &titel,
                         const QString &ordner, const QString &filter) {
  QFileDialog dialog(besitzer, titel, ordner, filter);
  dialog.setAcceptMode(modus);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setWindowModality(Qt::WindowModal);
  const bool gewaehlt = dialog.exec() == QDialog::Accepted;
  // When the dialog closes, Windows cannot activate the owner, which is still disabled.
  besitzer->activateWindow();
  return gewaehlt ? dialog.selectedFiles().value(0) : QString();
}
