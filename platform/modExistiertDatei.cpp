#include "platform/modExistiertDatei.h"

#include <QFileInfo>
#include <filesystem>
#include <system_error>

bool ExistiertDatei(const QString &pfad) {
  if (pfad.isEmpty())
    return false;
  const QFileInfo datei(pfad);
  std::error_code fehler;
  const auto art = std::filesystem::status(datei.filesystemFilePath(), fehler).type();
  // "Not found" also stands for a missing folder on the way.
  return art != std::filesystem::file_type::not_found || !QFileInfo(datei.path()).isDir();
}
