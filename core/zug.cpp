#include "core/zug.h"

#include <algorithm>
#include <array>

#include "core/anzeige.h"

namespace {

constexpr std::array<std::int32_t, kModi> kBonus{400, 450, 500};
constexpr std::int32_t kAbzug = 100;
constexpr int kBlinkenGewonnen = 300;  // milliseconds
constexpr int kBlinkenVerloren = 400;  // milliseconds

/// False until the first level has begun.
bool HatSaranten() { return std::ranges::any_of(spiel.Feld, &Zelle::IstSarant); }

void LevelGewonnen(Ansicht &ansicht) {
  LevelwertungZeigen(ansicht);
  ansicht.Zeige(Bedienung::imgNextLevel, true);
  ansicht.Zeige(Bedienung::imgSpeichern, true);
  ansicht.SpieleSound(kSoundTada);
  ansicht.StartePfeil(Pfeil::Weiter, kBlinkenGewonnen);
  ansicht.Zeige(Bedienung::imgWeiter, true);  // Nobody sees this step.
  ansicht.SetzeModustext(kKlickNaechsterLevel);
}

void LevelVerloren(Ansicht &ansicht) {
  ansicht.Zeige(Bedienung::cmdWiederholen, true);
  ansicht.StartePfeil(Pfeil::Weiter, kBlinkenVerloren);
  ansicht.SetzeModustext(kKlickWiederholen);
  ansicht.SpieleSound(kSoundFehler);
  spiel.Levelpunkte = -kAbzug;
  ZeigeStatus(ansicht);
  ZeigeLevelpunkte(ansicht, kAbzug, Ziffernfarbe::Rot);  // ZeigeStatus() blanks the row.
}

}  // namespace

void imgSar_MouseDown(Ansicht &ansicht, int Index, int Button) {
  if (!HatSaranten() || ansicht.IstSichtbar(Bedienung::imgNextLevel) ||
      ansicht.IstSichtbar(Bedienung::cmdWiederholen))
    return;
  const Kachel kachel = ansicht.LiesKachel(Index);
  if (Button == kLinkeTaste && kachel == Kachel::Markiert)
    return;
  ansicht.SetzeModustext(Moduszeile(3));
  if (Button == kLinkeTaste) {
    const bool istSarant = spiel.ZelleVon(Index).IstSarant;
    ansicht.SetzeKachel(Index, istSarant ? Kachel::Sarant : Kachel::Fehler);
    ansicht.SpieleSound(istSarant ? kSoundBlip : kSoundFehler);
  } else if (kachel == Kachel::Sarant || kachel == Kachel::Fehler) {
    return;
  } else {
    ansicht.SetzeKachel(Index, kachel == Kachel::Markiert ? Kachel::Verdeckt : Kachel::Markiert);
  }
  ZugAuswerten(ansicht);
  if (spiel.SarantenRest == 0)
    LevelGewonnen(ansicht);
}

void ZugAuswerten(Ansicht &ansicht) {
  spiel.Fehler = 0;
  for (int zelle = 1; zelle <= kZellen; ++zelle) {
    if (ansicht.LiesKachel(zelle) != Kachel::Fehler)
      continue;
    ++spiel.Fehler;
    if (spiel.Fehler > kErlaubteFehler) {
      LevelVerloren(ansicht);
      return;
    }
  }
  ZeigeStatus(ansicht);
}

void LevelwertungZeigen(Ansicht &ansicht) {
  spiel.Levelpunkte = Element(kBonus, spiel.Spielmodus - 1);
  ZeigeLevelwertung(ansicht);
}
