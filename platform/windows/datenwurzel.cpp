#include "platform/datenwurzel.h"

#include <windows.h>

#include <array>

QString Datenwurzel() {
  std::array<char, 200> ordner{};
  const UINT laenge = GetWindowsDirectoryA(ordner.data(), static_cast<UINT>(ordner.size()));
  // Windows writes nothing if the path is too long for the buffer.
  return laenge < ordner.size() ? QString::fromLocal8Bit(ordner.data()).left(2) : QString();
}
