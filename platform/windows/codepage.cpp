#include "platform/codepage.h"

#include <windows.h>

#include <array>

#include "platform/windows/zeichenumwandlung.h"

namespace {

constexpr int kLaengstesZeichen = 8;  ///< Bytes of a character in any ANSI code page, and to spare.

}  // namespace

QString AusCodepage(const QByteArray &bytes) {
  const int anzahl = static_cast<int>(bytes.size());
  std::wstring text(static_cast<std::size_t>(anzahl), L'\0');  // Never longer than its bytes.
  const int laenge = MultiByteToWideChar(CP_ACP, 0, bytes.data(), anzahl, text.data(), anzahl);
  return QString::fromWCharArray(text.data(), laenge);
}

QByteArray InCodepage(char32_t zeichen) {
  const std::wstring text = QString::fromUcs4(&zeichen, 1).toStdWString();
  std::array<char, kLaengstesZeichen> bytes{};
  const Zeichenumwandlung umwandlung = UmwandlungIn(GetACP());
  BOOL ersetzt = FALSE;
  const int anzahl = WideCharToMultiByte(
      CP_ACP, umwandlung.Flags, text.data(), static_cast<int>(text.size()), bytes.data(),
      kLaengstesZeichen, umwandlung.Ersatz ? "?" : nullptr, umwandlung.Ersatz ? &ersetzt : nullptr);
  return anzahl <= 0 || ersetzt ? QByteArray("?") : QByteArray(bytes.data(), anzahl);
}
