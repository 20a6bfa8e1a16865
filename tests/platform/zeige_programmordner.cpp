#include <QCoreApplication>
#include <cstdio>

#include "platform/pfade.h"

int main(int argc, char **argv) {
  const QCoreApplication anwendung(argc, argv);
  std::puts(qUtf8Printable(Programmordner()));
}
