/// @file
/// Feeds every file of a folder to the fuzz target that it is linked with.
#include <QDir>
#include <cstdio>

#include "tests/fuzz/fuzz_umgebung.h"

int main(int argc, char **argv) {
  int anzahl = 0;
  for (const QFileInfo &eintrag : QDir(argc > 1 ? argv[1] : "").entryInfoList(QDir::Files)) {
    const QByteArray bytes = Inhalt(eintrag.filePath());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
    ++anzahl;
  }
  std::printf("%d files\n", anzahl);
  return anzahl > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
