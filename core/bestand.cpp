#include "core/bestand.h"

#include <algorithm>

bool BrettLiegt() {
  return std::any_of(spiel.Feld.begin(), spiel.Feld.end(),
                     [](const Zelle &zelle) { return zelle.IstSarant; });
}

std::int16_t ZaehleRest(const Ansicht &ansicht) {
  int rest = 0;
  for (int zelle = 1; zelle <= kZellen; ++zelle) {
    rest += spiel.ZelleVon(zelle).IstSarant ? 1 : 0;
    rest -= ansicht.LiesKachel(zelle) == Kachel::Sarant ? 1 : 0;
  }
  return static_cast<std::int16_t>(rest);
}
