#include "core/anzeige.h"

#include <string>

#include "core/bestand.h"

namespace {

constexpr int kPunktstellen = 5;
constexpr int kLevelpunktstellen = 3;
constexpr int kMaxPunkte = 99999;

/// The two-digit rows that share `imgAuswertung`, told by their units place.
constexpr int kStelleLevel = 0;
constexpr int kStelleRest = 2;
constexpr int kStelleFehler = 4;

void LeereStellen(Ansicht &ansicht, Panelreihe reihe, int von, int bis,
                  Ziffernfarbe farbe = Ziffernfarbe::Gruen) {
  for (int stelle = von; stelle <= bis; ++stelle)
    ansicht.SetzeZiffer(reihe, stelle, farbe, kLeereZiffer);
}

/// Writes the digits of a number that is not negative, the units in place 0.
void ZeigeZiffern(Ansicht &ansicht, Panelreihe reihe, int wert, Ziffernfarbe farbe) {
  const std::string text = std::to_string(wert);
  int stelle = static_cast<int>(text.size());
  for (const char ziffer : text)
    ansicht.SetzeZiffer(reihe, --stelle, farbe, ziffer - '0');
}

/// Shows the first and the last digit of a number in a two-digit row of `imgAuswertung`.
void ZeigePaar(Ansicht &ansicht, int einer, int wert, Ziffernfarbe farbe) {
  const std::string text = std::to_string(wert);
  const int zehner = wert > 9 ? text.front() - '0' : kLeereZiffer;
  ansicht.SetzeZiffer(Panelreihe::imgAuswertung, einer + 1, farbe, zehner);
  ansicht.SetzeZiffer(Panelreihe::imgAuswertung, einer, farbe, text.back() - '0');
}

}  // namespace

void ZeigeStatus(Ansicht &ansicht) {
  spiel.SarantenRest = ZaehleRest(ansicht);
  LeereLevelpunkte(ansicht);
  ZeigePaar(ansicht, kStelleLevel, spiel.Level, Ziffernfarbe::Gruen);
  ZeigePaar(ansicht, kStelleRest, spiel.SarantenRest, Ziffernfarbe::Gruen);
  ZeigePaar(ansicht, kStelleFehler, spiel.Fehler, Ziffernfarbe::Rot);
  LeereStellen(ansicht, Panelreihe::imgPunkte, 1, kPunktstellen - 1);
  if (spiel.Punkte >= 0 && spiel.Punkte <= kMaxPunkte)
    ZeigeZiffern(ansicht, Panelreihe::imgPunkte, spiel.Punkte, Ziffernfarbe::Gruen);
}

void LeereLevelpunkte(Ansicht &ansicht) {
  LeereStellen(ansicht, Panelreihe::imgLevel, 0, kLevelpunktstellen - 1);
}

void ZeigeLevelpunkte(Ansicht &ansicht, int betrag, Ziffernfarbe farbe) {
  ZeigeZiffern(ansicht, Panelreihe::imgLevel, betrag, farbe);
}

void ZeigeLevelwertung(Ansicht &ansicht) {
  LeereStellen(ansicht, Panelreihe::imgPunkte, 0, kPunktstellen - 1);
  ZeigeLevelpunkte(ansicht, spiel.Levelpunkte, Ziffernfarbe::Gruen);
  if (spiel.Punkte > 0 && spiel.Punkte <= kMaxPunkte)
    ZeigeZiffern(ansicht, Panelreihe::imgPunkte, spiel.Punkte, Ziffernfarbe::Gruen);
}

void LeerePanel(Ansicht &ansicht) {
  LeereStellen(ansicht, Panelreihe::imgPunkte, 0, kPunktstellen - 1);
  LeereStellen(ansicht, Panelreihe::imgAuswertung, kStelleFehler, kStelleFehler + 1,
               Ziffernfarbe::Rot);
}
