// Files of the tests, written and read without the code under test, and texts of Qt.
#pragma once

#include <QFile>
#include <ostream>

/// Lets a failed comparison tell the text.
inline void PrintTo(const QString &text, std::ostream *out) {
  *out << text.toStdString();
}

inline void WriteFile(const QString &path, const QByteArray &bytes) {
  QFile file(path);
  file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  file.write(bytes);
}

inline QByteArray ReadFile(const QString &path) {
  QFile file(path);
  file.open(QIODevice::ReadOnly);
  return file.readAll();
}
