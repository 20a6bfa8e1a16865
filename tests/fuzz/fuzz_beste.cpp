#include "tests/fuzz/fuzz_umgebung.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t groesse) {
  FrischesSpiel();
  Lege(BestenlistePfad(), Bytes(daten, groesse));
  FeldAnsicht ansicht;
  BestenlisteLaden(ansicht);
  spiel.Punkte = 13600;
  ansicht.antworten = {kJa};
  BestenlistePruefen(ansicht);
  if (BestenEintrag) {
    BestenlisteSpeichern(ansicht);
    const QStringList namen = lstName;
    const QStringList punkte = lstPunkte;
    ansicht.meldungen.clear();
    BestenlisteLaden(ansicht);
    // A list that was saved can be loaded and says the same.
    Verlange(ansicht.meldungen.empty() && lstName == namen && lstPunkte == punkte);
  }
  return 0;
}
