#include "platform/dateidialog.h"

#include <QFileDialog>

void MerkeNichts() {}

bool ZeigeDateidialog(QFileDialog &dialog) {
  const bool gewaehlt = dialog.exec() == QDialog::Accepted;
  // The owner takes no input until the dialog has gone, so that the system has passed it over.
  dialog.parentWidget()->activateWindow();
  return gewaehlt;
}
