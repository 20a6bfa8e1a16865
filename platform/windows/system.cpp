#include "platform/system.h"

#include <windows.h>
// They need the header above.
#include <io.h>
#include <shellapi.h>

#include <QDir>
#include <QKeyEvent>
#include <array>

QString Datenwurzel() {
  std::array<char, 200> ordner{};
  const UINT laenge = GetWindowsDirectoryA(ordner.data(), static_cast<UINT>(ordner.size()));
  // Windows writes nothing if the path is too long for the buffer.
  return laenge < ordner.size() ? QString::fromLocal8Bit(ordner.data()).left(2) : QString();
}

void OeffneDokument(const QString &pfad) {
  const std::wstring dokument = QDir::toNativeSeparators(pfad).toStdWString();
  ShellExecuteW(nullptr, L"open", dokument.c_str(), nullptr, nullptr, SW_SHOWMAXIMIZED);
}

bool Synchronisiere(int datei) { return _commit(datei) == 0; }

unsigned Tastenplatz(const QKeyEvent &taste) { return taste.nativeScanCode(); }
