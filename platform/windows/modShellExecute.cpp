#include "platform/modShellExecute.h"

#include <windows.h>
// Needs the header above.
#include <shellapi.h>

#include <QDir>

void OeffneDokument(const QString &pfad) {
  const std::wstring dokument = QDir::toNativeSeparators(pfad).toStdWString();
  ShellExecuteW(nullptr, L"open", dokument.c_str(), nullptr, nullptr, SW_SHOWMAXIMIZED);
}
