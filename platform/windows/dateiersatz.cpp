#include "platform/dateiersatz.h"

#include <io.h>
#include <windows.h>

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
  // commit() would lose a failure of the last flush or of the disk, and replace the old file.
  if (datei.flush() && !FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(datei.handle()))))
    return Dateifehler::Anderer;
  return datei.error() == QFileDevice::NoError && datei.commit() ? Dateifehler::Keiner
                                                                 : Schreibfehler(datei);
}
