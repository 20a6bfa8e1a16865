/// @file
/// Files of the tests, written and read without the code under test.
#pragma once

#include <QByteArray>
#include <QFile>

inline void Lege(const QString &pfad, const QByteArray &bytes) {
  QFile datei(pfad);
  datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  datei.write(bytes);
}

inline QByteArray Inhalt(const QString &pfad) {
  QFile datei(pfad);
  datei.open(QIODevice::ReadOnly);
  return datei.readAll();
}
