#include "platform/modShellExecute.h"

#include <QDesktopServices>
#include <QUrl>

void OeffneDokument(const QString &pfad) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(pfad));
}
