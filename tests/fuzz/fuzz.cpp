/// The fuzz target: the input is tried as a file of each format.
#include <QTemporaryDir>
#include <cstdlib>

#include "persistence/iniLumbra.h"
#include "persistence/modBeste.h"
#include "persistence/modDateiHandling.h"
#include "tests/array_screen.h"
#include "tests/files.h"

/// Ends the run as a finding.
static void Require(bool condition) {
  if (!condition)
    std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  static const QTemporaryDir folder("/dev/shm/fuzz-XXXXXX");  // In memory.
  const QString saved = folder.filePath("spiel.sar");
  ArrayScreen screen;
  spiel = {};
  spiel.Datenordner = folder.path().toStdString();
  spiel.DatenordnerAktiv = true;
  for (const QString &path : {IniPfad(), BestenlistePfad(), saved})
    WriteFile(path, {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});

  LeseIni(screen);
  Require(IstModus(spiel.Spielmodus) && screen.messages.empty());

  BestenlisteLaden(screen);
  spiel.Punkte = 13600;
  screen.answers = {kJa};
  BestenlistePruefen(screen);
  BestenlisteSpeichern(screen);
  const Bestenliste list = spiel.Beste;
  screen = {};
  BestenlisteLaden(screen);  // A list that was saved can be loaded and says the same.
  Require(screen.messages.empty() && spiel.Beste.lstName == list.lstName &&
          spiel.Beste.lstPunkte == list.lstPunkte);

  screen.answers = {kJa};
  LadeSpielstand(screen, saved);
  const bool loaded = screen.answers.empty() && screen.messages.size() == 1;
  Require(!loaded || (spiel.Level >= 1 && spiel.Level <= kLetztesLevel &&
                      spiel.SarantenRest == 76 - spiel.Level - spiel.Startfelder));
  return 0;
}
