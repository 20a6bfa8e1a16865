// Files of the tests, written and read without the code under test, and texts of Qt.
#pragma once

#include <QFile>
#include <ostream>

inline std::ostream &operator<<(std::ostream &out, const QString &text) {
  return out << text.toStdString();
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
