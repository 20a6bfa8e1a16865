#include "platform/codepage.h"

#include <algorithm>
#include <array>

namespace {

/// The characters of the bytes 0x80 to 0x9F. Any other byte is the number of its character.
constexpr std::array<char16_t, 32> kBesondere{
    u'€',      u'\u0081', u'‚', u'ƒ', u'„', u'…',      u'†', u'‡',       //
    u'ˆ',      u'‰',      u'Š', u'‹', u'Œ', u'\u008D', u'Ž', u'\u008F',  //
    u'\u0090', u'‘',      u'’', u'“', u'”', u'•',      u'–', u'—',       //
    u'˜',      u'™',      u'š', u'›', u'œ', u'\u009D', u'ž', u'Ÿ'};
constexpr unsigned kErstesBesondere = 0x80;

char16_t Zeichen(char byte) {
  const unsigned wert = static_cast<unsigned char>(byte);
  const unsigned stelle = wert - kErstesBesondere;
  return stelle < kBesondere.size() ? kBesondere[stelle] : static_cast<char16_t>(wert);
}

}  // namespace

QString AusCodepage(const QByteArray &bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), text.begin(), Zeichen);
  return text;
}

QByteArray InCodepage(char32_t zeichen) {
  for (int byte = 0; byte <= 0xFF; ++byte)
    if (Zeichen(static_cast<char>(byte)) == zeichen)
      return {1, static_cast<char>(byte)};
  return {};
}
