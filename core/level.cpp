#include "core/level.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>

#include "core/anzeige.h"
#include "core/zahlen.h"
#include "core/zufall.h"
#include "core/zug.h"

namespace {

// The key is the last level of a range. For Experte in levels 6 to 20 see StartfelderFuer().
const std::map<int, std::array<std::int16_t, kModi>> kStartfelder{{20, {8, 6, 0}},
                                                                  {24, {14, 12, 12}},
                                                                  {29, {11, 9, 9}},
                                                                  {34, {9, 7, 7}},
                                                                  {kLetztesLevel, {7, 5, 5}}};
const std::map<int, std::int16_t> kFreifelder{{3, 2},  {8, 4},   {13, 6},
                                              {18, 8}, {30, 10}, {kLetztesLevel, 12}};

template <class Bereiche>
const auto &BereichMit(int level, const Bereiche &bereiche) {
  return bereiche.lower_bound(std::min(level, kLetztesLevel))->second;
}

std::int16_t ZufaelligeZelle(int von, int bis) {
  return static_cast<std::int16_t>(static_cast<int>(zufall.Zahl() * (bis - von + 1)) + von);
}

/// Draws cells until the flag of one is not set, and sets it.
std::int16_t ZieheZelle(std::int16_t von, std::int16_t bis, bool Zelle::*merkmal) {
  zufall.Saee();
  std::int16_t zelle = 0;
  do {
    zelle = ZufaelligeZelle(von, bis);
  } while (spiel.ZelleVon(zelle).*merkmal);
  spiel.ZelleVon(zelle).*merkmal = true;
  return zelle;
}

void FuelleBrett() {
  spiel.lstWiederHolen.clear();
  for (std::int16_t k = 1; k <= spiel.AnzahlSaranten; ++k) {
    const std::int16_t zelle = ZieheSarant(1, kZellen);
    Element(spiel.SarantenListe, k) = zelle;
    spiel.lstWiederHolen.push_back(std::to_string(zelle));
  }
}

/// After level 40: shows the closing messages, offers the best list, and ends the process.
void SpielZuEnde(Ansicht &ansicht) {
  ansicht.Melde(MeldungSpielBeendet);
  ansicht.BestenlistePruefen();
  ansicht.Melde(MeldungVielenDank);
  spiel.Punkte = 0;
  ansicht.BeendeDasSpiel();
}

}  // namespace

std::int16_t StartfelderFuer(int level, int modus) {
  if (modus == kModusExperte && level > 5 && level <= 20)
    return static_cast<std::int16_t>(level - 5);
  return Element(BereichMit(level, kStartfelder), modus - 1);
}

std::int16_t FreifelderFuer(int level) { return BereichMit(level, kFreifelder); }

void SpielBeginnen(Ansicht &ansicht) {
  spiel.Punkte = kStartpunkte;
  spiel.Levelpunkte = 0;  // Nobody sees this step, nor the one before LevelBeginnen().
  spiel.Level = 0;
  spiel.AnzahlSaranten = SarantenFuer(1);
  LevelBeginnen(ansicht);
  BerechneZahlen(ansicht);
}

void LevelBeginnen(Ansicht &ansicht) {
  ansicht.VerbergeModuswahl();
  spiel.Fehler = 0;
  for (int zelle = 1; zelle <= kZellen; ++zelle) {
    spiel.ZelleVon(zelle).IstSarant = false;
    ansicht.SetzeKachel(zelle, Kachel::Verdeckt);
  }
  ++spiel.Level;
  if (spiel.Level > kLetztesLevel) {
    SpielZuEnde(ansicht);
    return;
  }
  spiel.Startfelder = StartfelderFuer(spiel.Level, spiel.Spielmodus);
  spiel.AnzahlSaranten = SarantenFuer(spiel.Level);
  ansicht.FaerbeModustext();
  FuelleBrett();
  // Nobody sees these two steps, nor the last one.
  LeereLevelpunkte(ansicht);
  ansicht.Zeige(Bedienung::imgSpeichern, false);
  ExternerKlick(ansicht);
  MarkiereFreiesFeld(ansicht);
  ansicht.StoppePfeil(Pfeil::Weiter);
}

std::int16_t ZieheSarant(std::int16_t von, std::int16_t bis) {
  return ZieheZelle(von, bis, &Zelle::IstSarant);
}

std::int16_t ZieheStartfeld(std::int16_t von, std::int16_t bis) {
  return ZieheZelle(von, bis, &Zelle::Gezogen);
}

void ExternerKlick(Ansicht &ansicht) {
  for (Zelle &zelle : spiel.Feld)
    zelle.Gezogen = false;
  for (int n = 0; n < spiel.Startfelder; ++n) {
    std::int16_t zelle = 0;
    do {
      zelle = ZieheStartfeld(1, kZellen);
    } while (!spiel.ZelleVon(zelle).IstSarant);
    imgSar_MouseDown(ansicht, zelle, kLinkeTaste);
  }
  ZugAuswerten(ansicht);
  ZeigeStatus(ansicht);  // Nobody sees this step.
}

void MarkiereFreiesFeld(Ansicht &ansicht) {
  const std::int16_t freifelder = FreifelderFuer(spiel.Level);
  for (int marken = 0; marken < freifelder;) {
    const std::int16_t zelle = ZufaelligeZelle(1, kZellen);
    const auto &saranten = spiel.lstWiederHolen;
    if (std::find(saranten.begin(), saranten.end(), std::to_string(zelle)) != saranten.end())
      continue;
    if (ansicht.LiesKachel(zelle) != Kachel::Markiert) {
      ansicht.SetzeKachel(zelle, Kachel::Markiert);
      ++marken;
    }
  }
}

void RaeumeLevelende(Ansicht &ansicht) {
  spiel.Fehler = 0;       // Nobody sees this step: LevelBeginnen() does it, too.
  spiel.Levelpunkte = 0;  // Nor this one: the end of each level sets them anew.
  for (const Bedienung bedienung :
       {Bedienung::imgNextLevel, Bedienung::cmdWiederholen, Bedienung::imgSpeichern})
    ansicht.Zeige(bedienung, false);
  ansicht.StoppePfeil(Pfeil::Start);
  ansicht.StoppePfeil(Pfeil::Weiter);
}
