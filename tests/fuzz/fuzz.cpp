/// @file
/// One fuzz target for each file format: FORMAT names the function below that the target calls.
#include <QTemporaryDir>
#include <cstdint>
#include <cstdlib>

#include "persistence/iniLumbra.h"
#include "persistence/modBeste.h"
#include "persistence/modDateiHandling.h"
#include "tests/array_screen.h"
#include "tests/files.h"

namespace {

ArrayScreen screen;

/// Ends the run as a finding.
void Require(bool condition) {
  if (!condition)
    std::abort();
}

[[maybe_unused]] void ini(const QByteArray &bytes) {
  WriteFile(IniPfad(), bytes);
  LeseIni(screen);
  Require(IstModus(spiel.Spielmodus) && screen.messages.empty());
}

[[maybe_unused]] void spielstand(const QByteArray &bytes) {
  const QString path = IniPfad() + ".sar";
  WriteFile(path, bytes);
  LadeSpielstand(screen, path);
  Require(!screen.messages.empty() && IstModus(spiel.Spielmodus));
  const bool loaded = screen.answers.empty() && screen.messages.size() == 1;
  Require(!loaded || (spiel.Level >= 1 && spiel.Level <= kLetztesLevel &&
                      spiel.SarantenRest == 76 - spiel.Level - spiel.Startfelder));
  SpeichereSpielstand(screen, path);
  Require(!loaded || screen.messages.size() == 1);
}

[[maybe_unused]] void beste(const QByteArray &bytes) {
  WriteFile(BestenlistePfad(), bytes);
  BestenlisteLaden(screen);
  spiel.Punkte = 13600;
  BestenlistePruefen(screen);
  BestenlisteSpeichern(screen);
  const Bestenliste list = spiel.Beste;
  screen.messages.clear();
  BestenlisteLaden(screen);  // A list that was saved can be loaded and says the same.
  Require(screen.messages.empty() && spiel.Beste.lstName == list.lstName &&
          spiel.Beste.lstPunkte == list.lstPunkte);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  static const QTemporaryDir folder("/dev/shm/fuzz-XXXXXX");  // In memory.
  spiel = {};
  spiel.Datenordner = folder.path().toStdString();
  spiel.DatenordnerAktiv = true;
  screen = {};
  screen.answers = {kJa};
  FORMAT({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});
  return 0;
}
