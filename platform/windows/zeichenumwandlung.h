/// @file
/// How Windows wants to be asked to encode a character, without Windows' own header, so that every
/// system can test it.
#pragma once

constexpr unsigned kUtf8 = 65001;  ///< CP_UTF8; may be the ANSI code page of a machine.

struct Zeichenumwandlung {
  unsigned long Flags;  ///< dwFlags of WideCharToMultiByte
  bool Ersatz;          ///< Whether it takes a default character and tells of its use.
};

/// UTF-8 knows every character: the call fails if it is asked for a replacement, and shall fail for
/// half a character. In any other code page no character may become one that merely looks like it.
constexpr Zeichenumwandlung UmwandlungIn(unsigned codepage) {
  constexpr unsigned long kErrInvalidChars = 0x80, kNoBestFitChars = 0x400;
  return codepage == kUtf8 ? Zeichenumwandlung{kErrInvalidChars, false}
                           : Zeichenumwandlung{kNoBestFitChars, true};
}
