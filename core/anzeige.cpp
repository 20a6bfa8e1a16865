#include "core/anzeige.h"

#include <string>

namespace {

constexpr int kPunktstellen = 5;
constexpr int kLevelpunktstellen = 3;
constexpr int kMaxPunkte = 99999;

/// Gems of the board that are not open yet.
std::int16_t ZaehleRest(const Ansicht &ansicht) {
  int rest = 0;
  for (int zelle = 1; zelle <= kZellen; ++zelle) {
    rest += spiel.ZelleVon(zelle).IstSarant ? 1 : 0;
    rest -= ansicht.LiesKachel(zelle) == Kachel::Sarant ? 1 : 0;
  }
  return static_cast<std::int16_t>(rest);
}

void LeereStellen(Ansicht &ansicht, Panelreihe reihe, int von, int bis,
                  Ziffernfarbe farbe = Ziffernfarbe::Gruen) {
  for (int stelle = von; stelle <= bis; ++stelle)
    ansicht.SetzeZiffer(reihe, stelle, farbe, kLeereZiffer);
}

/// @param wert   not negative.
void ZeigeZiffern(Ansicht &ansicht, Panelreihe reihe, int wert, Ziffernfarbe farbe) {
  const std::string text = std::to_string(wert);
  int stelle = static_cast<int>(text.size());
  for (const char ziffer : text)
    ansicht.SetzeZiffer(reihe, --stelle, farbe, ziffer - '0');
}

/// Shows the first and the last digit of a number in a row of two places.
void ZeigePaar(Ansicht &ansicht, Panelreihe reihe, int wert, Ziffernfarbe farbe) {
  const std::string text = std::to_string(wert);
  const int zehner = wert > 9 ? text.front() - '0' : kLeereZiffer;
  ansicht.SetzeZiffer(reihe, 1, farbe, zehner);
  ansicht.SetzeZiffer(reihe, 0, farbe, text.back() - '0');
}

}  // namespace

void ZeigeStatus(Ansicht &ansicht) {
  spiel.SarantenRest = ZaehleRest(ansicht);
  LeereLevelpunkte(ansicht);
  ZeigePaar(ansicht, Panelreihe::Level, spiel.Level, Ziffernfarbe::Gruen);
  ZeigePaar(ansicht, Panelreihe::NochOffen, spiel.SarantenRest, Ziffernfarbe::Gruen);
  ZeigePaar(ansicht, Panelreihe::Fehlversuche, spiel.Fehler, Ziffernfarbe::Rot);
  LeereStellen(ansicht, Panelreihe::Punkte, 1, kPunktstellen - 1);
  if (spiel.Punkte >= 0 && spiel.Punkte <= kMaxPunkte)
    ZeigeZiffern(ansicht, Panelreihe::Punkte, spiel.Punkte, Ziffernfarbe::Gruen);
}

void LeereLevelpunkte(Ansicht &ansicht) {
  LeereStellen(ansicht, Panelreihe::Levelpunkte, 0, kLevelpunktstellen - 1);
}

void ZeigeLevelpunkte(Ansicht &ansicht, int betrag, Ziffernfarbe farbe) {
  ZeigeZiffern(ansicht, Panelreihe::Levelpunkte, betrag, farbe);
}

void ZeigeLevelwertung(Ansicht &ansicht) {
  LeereStellen(ansicht, Panelreihe::Punkte, 0, kPunktstellen - 1);
  ZeigeLevelpunkte(ansicht, spiel.Levelpunkte, Ziffernfarbe::Gruen);
  if (spiel.Punkte > 0 && spiel.Punkte <= kMaxPunkte)
    ZeigeZiffern(ansicht, Panelreihe::Punkte, spiel.Punkte, Ziffernfarbe::Gruen);
}

void LeerePanel(Ansicht &ansicht) {
  LeereStellen(ansicht, Panelreihe::Punkte, 0, kPunktstellen - 1);
  LeereStellen(ansicht, Panelreihe::Fehlversuche, 0, 1, Ziffernfarbe::Rot);
}
