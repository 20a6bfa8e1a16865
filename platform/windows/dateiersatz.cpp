#include "platform/dateiersatz.h"

#include <QFileInfo>
#include <QSaveFile>

#include "platform/modExistiertDatei.h"

namespace {

/// Why the file could not be written; Qt does not tell all causes apart.
Dateifehler Schreibfehler(const QSaveFile &datei) {
  if (datei.error() == QFileDevice::ResourceError)
    return Dateifehler::DatentraegerVoll;
  if (datei.error() == QFileDevice::WriteError && datei.isOpen())
    return Dateifehler::Anderer;
  return QFileInfo(QFileInfo(datei.fileName()).path()).isDir() ? Dateifehler::ZugriffVerweigert
                                                               : Dateifehler::PfadNichtGefunden;
}

}  // namespace

Dateifehler ErsetzeDatei(const QString &pfad, const QByteArray &inhalt) {
  QSaveFile datei(pfad);
  if (!datei.open(QIODevice::WriteOnly))
    return Schreibfehler(datei);
  datei.write(inhalt);
  // commit() would lose a failure of the last flush and replace the old file by a short one.
  return datei.flush() && datei.commit() ? Dateifehler::Keiner : Schreibfehler(datei);
}
