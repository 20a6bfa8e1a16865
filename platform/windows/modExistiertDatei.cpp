#include "platform/modExistiertDatei.h"

#include <windows.h>

#include <QDir>

namespace {

std::wstring Nativ(const QString &pfad) {
  return QDir::toNativeSeparators(pfad).toStdWString();
}

}  // namespace

bool ExistiertDatei(const QString &pfad) {
  // Of a path through a missing folder the system says "path not found", which counts as existing.
  return !pfad.isEmpty() && (GetFileAttributesW(Nativ(pfad).c_str()) != INVALID_FILE_ATTRIBUTES ||
                             GetLastError() != ERROR_FILE_NOT_FOUND);
}

bool ErstelleOrdner(const QString &pfad) {
  return CreateDirectoryW(Nativ(pfad).c_str(), nullptr) != FALSE;
}
