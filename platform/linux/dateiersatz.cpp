// Qt's own class for this loses a failure of the last flush and of the sync, and makes the name of
// the file that it writes first longer than a file system may allow.
#include "platform/dateiersatz.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace {

Dateifehler FehlerZu(int nummer) {
  switch (nummer) {
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
      return Dateifehler::ZugriffVerweigert;
    case ENOENT:
    case ENOTDIR:
      return Dateifehler::PfadNichtGefunden;
    case ENOSPC:
    case EDQUOT:
      return Dateifehler::DatentraegerVoll;
    default:
      return Dateifehler::Anderer;
  }
}

bool SchreibeAlles(int datei, const QByteArray &inhalt) {
  qsizetype geschrieben = 0;
  while (geschrieben < inhalt.size()) {
    const ssize_t stueck = write(datei, inhalt.data() + geschrieben,
                                 static_cast<std::size_t>(inhalt.size() - geschrieben));
    if (stueck < 0 && errno != EINTR)
      return false;
    geschrieben += std::max<ssize_t>(stueck, 0);
  }
  return fsync(datei) == 0;
}

}  // namespace

Dateifehler ErsetzeDatei(const QString &pfad, const QByteArray &inhalt) {
  const QFileInfo info(pfad);
  const QByteArray ziel = QFile::encodeName(info.isSymLink() ? info.symLinkTarget() : pfad);
  struct stat alt {};
  const bool ersetzt = stat(ziel.constData(), &alt) == 0;
  // A file that may not be written may not be replaced either, though its folder would allow it.
  if (ersetzt && access(ziel.constData(), W_OK) != 0)
    return FehlerZu(errno);

  const QByteArray neu =
      QFile::encodeName(QFileInfo(QFile::decodeName(ziel)).dir().filePath(".glanzgrube-")) +
      QByteArray::number(getpid());
  const int datei =
      open(neu.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666);
  if (datei < 0)
    return FehlerZu(errno);
  const bool fertig = (!ersetzt || fchmod(datei, alt.st_mode & 0777) == 0) &&
                      SchreibeAlles(datei, inhalt) &&
                      rename(neu.constData(), ziel.constData()) == 0;
  const Dateifehler ergebnis = fertig ? Dateifehler::Keiner : FehlerZu(errno);
  close(datei);
  if (!fertig)
    unlink(neu.constData());
  return ergebnis;
}
