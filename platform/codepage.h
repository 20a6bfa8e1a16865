// The code page of the text files.
//
// Windows: the ANSI code page of the machine. Other systems: Windows-1252.
// Source of the latter: WHATWG Encoding Standard, index windows-1252.
#pragma once

#include <QByteArray>
#include <QString>

/// Decodes a line. Every byte, NUL included, stands for a character.
QString AusCodepage(const QByteArray &bytes);

/// Encodes a character; empty if the code page lacks it.
QByteArray InCodepage(char32_t zeichen);
