#include "core/zahlen.h"

#include "core/anzeige.h"

namespace {

/// A row or a column, read from its right or lower end.
struct Linie {
  int ersteZelle;
  int schritt;
  int ersterPlatz;
};

Linie Spalte(int c) {
  return {90 + c, -10, kPlaetzeJeLinie * (c - 1) + 1};
}
Linie Zeile(int r) {
  return {10 * r, -1, 50 + kPlaetzeJeLinie * (r - 1) + 1};
}

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
  for (int c = 1; c <= kLinie; ++c)
    ZaehleLinie(ansicht, Spalte(c));
  for (int r = 1; r <= kLinie; ++r)
    ZaehleLinie(ansicht, Zeile(r));
  for (int platz = 1; platz <= kZahlfelder; ++platz) {
    if (ansicht.IstZahlNull(platz))
      ansicht.ZeigeZahlfeld(platz, false);
  }
  ZeigeStatus(ansicht);
}
