#include "platform/modExistiertDatei.h"

#include <QDir>
#include <QFileInfo>
#include <filesystem>
#include <system_error>

bool ExistiertDatei(const QString &pfad) {
  if (pfad.isEmpty())
    return false;
  const QFileInfo datei(pfad);
  std::error_code unbeachtet;
  const auto zustand = std::filesystem::status(datei.filesystemFilePath(), unbeachtet);
  // "Not found" is also said of a path through a missing folder, which counts as existing.
  return zustand.type() != std::filesystem::file_type::not_found ||
         !QFileInfo(datei.path()).isDir();
}

bool ErstelleOrdner(const QString &pfad) {
  return QDir().mkdir(pfad);
}
