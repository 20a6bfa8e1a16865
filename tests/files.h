/// @file
/// Files of the tests, written and read without the code under test, and texts of Qt.
#pragma once

#include <QByteArray>
#include <QFile>
#include <ostream>

/// Lets a failed comparison tell the text.
inline void PrintTo(const QString &text, std::ostream *ausgabe) {
  *ausgabe << text.toStdString();
}

inline void WriteFile(const QString &pfad, const QByteArray &bytes) {
  QFile datei(pfad);
  datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  datei.write(bytes);
}

inline QByteArray ReadFile(const QString &pfad) {
  QFile datei(pfad);
  datei.open(QIODevice::ReadOnly);
  return datei.readAll();
}
