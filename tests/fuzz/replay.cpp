/// @file
/// Feeds every file of a folder to the fuzz target that it is linked with.
#include <QDir>

#include "tests/files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t groesse);

int main(int argc, char **argv) {
  const auto dateien = QDir(argc > 1 ? argv[1] : "").entryInfoList(QDir::Files);
  for (const QFileInfo &datei : dateien) {
    const QByteArray bytes = ReadFile(datei.filePath());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
  }
  return dateien.isEmpty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
