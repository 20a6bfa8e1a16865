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

ArrayScreen ansicht;

/// Ends the run as a finding.
void Verlange(bool bedingung) {
  if (!bedingung)
    std::abort();
}

[[maybe_unused]] void ini(const QByteArray &bytes) {
  WriteFile(IniPfad(), bytes);
  LeseIni(ansicht);
  Verlange(IstModus(spiel.Spielmodus) && ansicht.meldungen.empty());
}

[[maybe_unused]] void spielstand(const QByteArray &bytes) {
  const QString pfad = IniPfad() + ".sar";
  WriteFile(pfad, bytes);
  LadeSpielstand(ansicht, pfad);
  Verlange(!ansicht.meldungen.empty() && IstModus(spiel.Spielmodus));
  const bool gefragt = ansicht.antworten.empty();
  const bool geladen = gefragt && ansicht.meldungen.size() == 1;
  Verlange(gefragt || spiel.Level == 0);
  Verlange(!geladen || (spiel.Level >= 1 && spiel.Level <= kLetztesLevel &&
                        spiel.SarantenRest == 76 - spiel.Level - spiel.Startfelder));
  SpeichereSpielstand(ansicht, pfad);
  Verlange(!geladen || ansicht.meldungen.size() == 1);
}

[[maybe_unused]] void beste(const QByteArray &bytes) {
  WriteFile(BestenlistePfad(), bytes);
  BestenlisteLaden(ansicht);
  spiel.Punkte = 13600;
  BestenlistePruefen(ansicht);
  if (!spiel.Beste.BestenEintrag)
    return;
  BestenlisteSpeichern(ansicht);
  const Bestenliste liste = spiel.Beste;
  ansicht.meldungen.clear();
  BestenlisteLaden(ansicht);
  // A list that was saved can be loaded and says the same.
  Verlange(ansicht.meldungen.empty() && spiel.Beste.lstName == liste.lstName &&
           spiel.Beste.lstPunkte == liste.lstPunkte);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t groesse) {
  static const QTemporaryDir ordner("/dev/shm/fuzz-XXXXXX");  // In memory.
  spiel = {};
  spiel.Datenordner = ordner.path().toStdString();
  spiel.DatenordnerAktiv = true;
  ansicht = {};
  ansicht.antworten = {kJa};
  FORMAT({reinterpret_cast<const char *>(daten), static_cast<qsizetype>(groesse)});
  return 0;
}
