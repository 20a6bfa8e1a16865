#include "persistence/iniLumbra.h"
#include "tests/fuzz/fuzz_umgebung.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t groesse) {
  FrischesSpiel();
  Lege(IniPfad(), Bytes(daten, groesse));
  FeldAnsicht ansicht;
  LeseIni(ansicht);
  Verlange(IstModus(spiel.Spielmodus) && ansicht.meldungen.empty());
  return 0;
}
