#include "persistence/iniLumbra.h"
#include "persistence/modDateiHandling.h"
#include "tests/fuzz/fuzz_umgebung.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t groesse) {
  const QString pfad = FrischesSpiel() + "/spiel.sar";
  Lege(pfad, Bytes(daten, groesse));
  FeldAnsicht ansicht;
  ansicht.antworten = {kJa};
  LadeSpielstand(ansicht, pfad);
  Verlange(!ansicht.meldungen.empty() && IstModus(spiel.Spielmodus));
  const bool gefragt = ansicht.antworten.empty();
  const bool geladen = gefragt && ansicht.meldungen.size() == 1;
  Verlange(gefragt || spiel.Level == 0);
  Verlange(!geladen || (spiel.Level >= 1 && spiel.Level <= kLetztesLevel &&
                        spiel.SarantenRest == 76 - spiel.Level - spiel.Startfelder));
  if (geladen) {
    SpeichereSpielstand(ansicht, pfad);
    Verlange(ansicht.meldungen.size() == 1);
  }
  return 0;
}
