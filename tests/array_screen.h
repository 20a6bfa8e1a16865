// A screen made of arrays, on which the rules are tested without a window.
#pragma once

#include <array>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/ansicht.h"

class ArrayScreen : public Ansicht {
 public:
  std::array<Kachel, kZellen + 1> tiles{};
  std::array<int, kZahlfelder + 1> numbers{};
  std::array<bool, kZahlfelder + 1> numberVisible{};
  /// By row and negative place, so as they stand; '_' is blank, red in brackets.
  std::map<std::pair<Panelreihe, int>, std::string> digits;
  std::string modeText;
  Textfarbe modeColour = Textfarbe::Dunkelblau;
  std::map<Bedienung, bool> visible;
  bool modeRowVisible = true;
  std::map<Pfeil, int> timers, arrows;
  std::vector<int> sounds;
  std::vector<Meldung> messages;     ///< Announcements and questions, in their order.
  std::deque<std::int16_t> answers;  ///< Answers to come; an empty queue cancels.
  int checksOfBest = 0;
  bool ended = false;

  Kachel LiesKachel(int zelle) const override { return tiles.at(Index(zelle)); }
  void SetzeKachel(int zelle, Kachel kachel) override { tiles.at(Index(zelle)) = kachel; }
  void SetzeZahl(int platz, int zahl) override { numbers.at(Index(platz)) = zahl; }
  bool IstZahlNull(int platz) const override { return numbers.at(Index(platz)) == 0; }
  void ZeigeZahlfeld(int platz, bool s) override { numberVisible.at(Index(platz)) = s; }
  void SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) override {
    const std::string sign(1, "0123456789_"[ziffer]);
    digits[{reihe, -stelle}] = farbe == Ziffernfarbe::Rot ? "[" + sign + "]" : sign;
  }
  void SetzeModustext(const std::string &text) override { modeText = text; }
  void SetzeModusfarbe(Textfarbe farbe) override { modeColour = farbe; }
  bool IstSichtbar(Bedienung b) const override { return visible.contains(b) && visible.at(b); }
  void Zeige(Bedienung bedienung, bool s) override { visible[bedienung] = s; }
  void VerbergeModuswahl() override { modeRowVisible = false; }
  void StartePfeil(Pfeil pfeil, int takt) override { timers[pfeil] = takt; }
  void ZeigePfeil(Pfeil pfeil, int phase) override { arrows[pfeil] = phase; }
  void StoppePfeil(Pfeil pfeil) override {
    StartePfeil(pfeil, 0);
    ZeigePfeil(pfeil, kKeinPfeil);
  }
  void SpieleSound(int effekt) override { sounds.push_back(effekt); }
  void Melde(const Meldung &meldung) override { messages.push_back(meldung); }
  bool Frage(const Meldung &meldung) override {
    Melde(meldung);
    spiel.Antwort = answers.empty() ? kAbgebrochen : answers.front();
    if (!answers.empty())
      answers.pop_front();
    return spiel.Antwort == kJa;
  }
  void BestenlistePruefen() override { ++checksOfBest; }
  void ZeigeBesteneintrag() override {}
  void BeendeDasSpiel() override { ended = true; }

 private:
  static std::size_t Index(int n) { return static_cast<std::size_t>(n); }
};
