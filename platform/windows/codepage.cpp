#include "platform/codepage.h"

#include <windows.h>

#include <array>

QString AusCodepage(const QByteArray &bytes) {
  const int anzahl = static_cast<int>(bytes.size());
  std::wstring text(static_cast<std::size_t>(anzahl), L'\0');  // Never longer than its bytes.
  const int laenge = MultiByteToWideChar(CP_ACP, 0, bytes.data(), anzahl, text.data(), anzahl);
  return QString::fromWCharArray(text.data(), laenge);
}

QByteArray InCodepage(char32_t zeichen) {
  const QString text = QString::fromUcs4(&zeichen, 1);
  std::array<char, 8> bytes{};  // Room for a character of any code page.
  const int anzahl =
      WideCharToMultiByte(CP_ACP, 0, text.toStdWString().c_str(), static_cast<int>(text.size()),
                          bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
  // Windows writes a similar character for one that the code page lacks. Its own test for that is
  // not allowed in UTF-8, which may be the code page.
  const QByteArray kodiert(bytes.data(), anzahl);
  return AusCodepage(kodiert) == text ? kodiert : QByteArray();
}
