#include "core/zahlen.h"

#include "core/anzeige.h"

namespace {

/// A row or a column, read from its right or lower end.
struct Linie {
  int ersteZelle;
  int schritt;
  int ersterPlatz;
};

void ZaehleLinie(Ansicht &ansicht, const Linie &linie) {
  int platz = linie.ersterPlatz;
  int lauf = 0;
  for (int k = 0; k < kLinie; ++k) {
    if (spiel.ZelleVon(linie.ersteZelle + k * linie.schritt).IstSarant) {
      ++lauf;
    } else if (lauf != 0) {
      ansicht.SetzeZahl(platz++, lauf);
      lauf = 0;
    }
  }
  if (lauf != 0)
    ansicht.SetzeZahl(platz, lauf);
}

}  // namespace

void BerechneZahlen(Ansicht &ansicht) {
  for (int platz = 1; platz <= kZahlfelder; ++platz) {
    ansicht.ZeigeZahlfeld(platz, true);
    ansicht.SetzeZahl(platz, 0);
  }
  for (int spalte = 1; spalte <= kLinie; ++spalte)
    ZaehleLinie(ansicht, {kZellen - kLinie + spalte, -kLinie, PlatzVon(true, spalte, 1)});
  for (int zeile = 1; zeile <= kLinie; ++zeile)
    ZaehleLinie(ansicht, {kLinie * zeile, -1, PlatzVon(false, zeile, 1)});
  for (int platz = 1; platz <= kZahlfelder; ++platz) {
    if (ansicht.IstZahlNull(platz))
      ansicht.ZeigeZahlfeld(platz, false);
  }
  ZeigeStatus(ansicht);
}
