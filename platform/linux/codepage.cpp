#include "platform/codepage.h"

#include <algorithm>
#include <array>

namespace {

/// What the bytes 0x80 to 0x9F stand for; all other bytes stand for the character of their value.
constexpr std::array<char16_t, 32> kBesondere{
    u'€',      u'\u0081', u'‚', u'ƒ', u'„', u'…',      u'†', u'‡',       //
    u'ˆ',      u'‰',      u'Š', u'‹', u'Œ', u'\u008D', u'Ž', u'\u008F',  //
    u'\u0090', u'‘',      u'’', u'“', u'”', u'•',      u'–', u'—',       //
    u'˜',      u'™',      u'š', u'›', u'œ', u'\u009D', u'ž', u'Ÿ'};
constexpr unsigned kErstesBesondere = 0x80;

QChar Dekodiert(char byte) {
  const unsigned wert = static_cast<unsigned char>(byte);
  const unsigned stelle = wert - kErstesBesondere;
  return stelle < kBesondere.size() ? QChar(kBesondere[stelle]) : QChar(wert);
}

char Kodiert(char32_t zeichen) {
  const bool besonders = zeichen - kErstesBesondere < kBesondere.size();
  if (zeichen <= 0xFF && !besonders)
    return static_cast<char>(zeichen);
  const auto fund = std::find(kBesondere.begin(), kBesondere.end(), zeichen);
  return fund == kBesondere.end()
             ? '?'
             : static_cast<char>(kErstesBesondere +
                                 static_cast<unsigned>(fund - kBesondere.begin()));
}

}  // namespace

QString AusCodepage(const QByteArray &bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), text.begin(), Dekodiert);
  return text;
}

QByteArray InCodepage(char32_t zeichen) {
  return {1, Kodiert(zeichen)};
}
