#include "core/befehle.h"

#include "core/anzeige.h"
#include "core/level.h"
#include "core/zahlen.h"

namespace {

constexpr int kBlinkenStart = 300;  // milliseconds
constexpr std::int32_t kPunkteJeLevel = 300;
constexpr std::int32_t kPunkteJeLevelExperte = 350;

/// Adds the result of the level to the points.
void VerbucheLevelpunkte() {
  spiel.Punkte = SummePunkte();
  spiel.Levelpunkte = 0;
}

std::int16_t NaechstePhase(std::int16_t phase) { return phase == 0 ? 1 : 0; }

}  // namespace

void WarteAufSpiel(Ansicht &ansicht) {
  LeerePanel(ansicht);
  ZeigeStatus(ansicht);
  ansicht.ZeigePfeil(Pfeil::Start, spiel.StartBlinkphase);
  ansicht.StartePfeil(Pfeil::Start, kBlinkenStart);
  ansicht.SetzeModustext(kWaehleModus);
  ansicht.StoppePfeil(Pfeil::Weiter);
}

void imgNeuesSpiel_Click(Ansicht &ansicht) {
  if (spiel.Punkte != 0 && !ansicht.Frage(FrageNeuesSpiel))
    return;
  RaeumeLevelende(ansicht);
  ansicht.SetzeModustext(Moduszeile(2));
  SpielBeginnen(ansicht);
  ZeigeStatus(ansicht);  // Nobody sees this step.
}

void imgNextLevel_Click(Ansicht &ansicht) {
  ansicht.Zeige(Bedienung::imgNextLevel, false);
  ansicht.Zeige(Bedienung::imgSpeichern, false);
  ansicht.StoppePfeil(Pfeil::Weiter);
  VerbucheLevelpunkte();
  spiel.WeiterBlinkphase = 0;
  LevelBeginnen(ansicht);
  BerechneZahlen(ansicht);
  ansicht.Zeige(Bedienung::imgBester, NeueBestmarke());
}

void cmdWiederholen_Click(Ansicht &ansicht) {
  VerbucheLevelpunkte();
  spiel.Fehler = 0;
  ansicht.Zeige(Bedienung::cmdWiederholen, false);
  ansicht.StoppePfeil(Pfeil::Weiter);
  BerechneZahlen(ansicht);
  ZeigeStatus(ansicht);  // Nobody sees this step.
  for (int zelle = 1; zelle <= kZellen; ++zelle)
    ansicht.SetzeKachel(zelle, Kachel::Verdeckt);
  MarkiereFreiesFeld(ansicht);
  ExternerKlick(ansicht);
}

void imgEnde_Click(Ansicht &ansicht) {
  if (spiel.Punkte == 0 || ansicht.Frage(FrageBeenden))
    ansicht.BeendeDasSpiel();
}

void ZeigeStart(Ansicht &ansicht) {
  spiel.StartBlinkphase = NaechstePhase(spiel.StartBlinkphase);
  ansicht.ZeigePfeil(Pfeil::Start, spiel.StartBlinkphase);
}

void NaechsterLevelBlinkt(Ansicht &ansicht) {
  ansicht.ZeigePfeil(Pfeil::Weiter, spiel.WeiterBlinkphase);
  spiel.WeiterBlinkphase = NaechstePhase(spiel.WeiterBlinkphase);
}

bool NeueBestmarke() { return spiel.Punkte > spiel.Bestenschwelle; }

std::int32_t PunkteFuerStart(int uebersprungen, int modus) {
  if (uebersprungen == 0)
    return kStartpunkte;
  return uebersprungen * (modus == kModusExperte ? kPunkteJeLevelExperte : kPunkteJeLevel);
}

void SpielAbLevelBeginnen(Ansicht &ansicht, int uebersprungen, int modus) {
  spiel.Level = static_cast<std::int16_t>(uebersprungen);
  spiel.Spielmodus = static_cast<std::int16_t>(modus);
  spiel.Punkte = PunkteFuerStart(uebersprungen, modus);
  RaeumeLevelende(ansicht);
  LevelBeginnen(ansicht);
  BerechneZahlen(ansicht);
}
