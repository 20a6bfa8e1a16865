// A screen made of arrays, on which rules and files are tested without a window.
#pragma once

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <string>
#include <utility>

#include "core/ansicht.h"

class ArrayScreen : public Ansicht {
 public:
  std::array<Kachel, kZellen + 1> tiles{};
  std::array<int, kZahlfelder + 1> numbers{};
  std::array<bool, kZahlfelder + 1> numberVisible{};
  std::deque<std::int16_t> answers;  ///< Answers to come; an empty queue cancels.

  /// What the player sees and hears, by what it is called.
  std::map<std::string, std::string> shown;

  int Count(Kachel tile) const {
    return static_cast<int>(std::count(tiles.begin() + 1, tiles.end(), tile));
  }
  /// The sounds and messages since the last time, and what else has changed on the screen or in the
  /// game.
  std::string Tell() {
    for (const auto &[kind, name] : {std::pair(Kachel::Markiert, "marks"),
                                     {Kachel::Fehler, "errors"},
                                     {Kachel::Sarant, "gems"}})
      shown[name] = std::to_string(Count(kind));
    shown["game"] = "level " + std::to_string(spiel.Level) + " " + ModusName(spiel.Spielmodus) +
                    ", points " + std::to_string(spiel.Punkte) + " + " +
                    std::to_string(spiel.Levelpunkte);
    std::string text;
    for (const auto &[name, value] : shown)
      if (value != told[name])
        text += " | " + name + ": " + value;
    shown["sounds"] = shown["message"] = "";
    told = shown;
    return text + "\n";
  }

  Kachel LiesKachel(int zelle) const override { return Element(tiles, zelle); }
  void SetzeKachel(int zelle, Kachel kachel) override { Element(tiles, zelle) = kachel; }
  void SetzeZahl(int platz, int zahl) override { Element(numbers, platz) = zahl; }
  bool IstZahlNull(int platz) const override { return Element(numbers, platz) == 0; }
  void ZeigeZahlfeld(int platz, bool s) override { Element(numberVisible, platz) = s; }
  void SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) override {
    const std::string sign(1, "0123456789_"[ziffer]);
    digits[{reihe, -stelle}] = farbe == Ziffernfarbe::Rot ? "[" + sign + "]" : sign;
    shown["panel"].clear();
    for (const auto &[place, digit] : digits)
      shown["panel"] += digit + (place.second == 0 ? " " : "");
  }
  void SetzeModustext(const std::string &text) override { shown["text"] = Line(text); }
  void FaerbeModustext() override { shown["colour"] = "blue"; }
  bool IstSichtbar(Bedienung b) const override {
    return shown.contains(Name(b)) && shown.at(Name(b)) == "visible";
  }
  void Zeige(Bedienung b, bool s) override { shown[Name(b)] = s ? "visible" : "hidden"; }
  void VerbergeModuswahl() override { shown["modes"] = "hidden"; }
  void StartePfeil(Pfeil pfeil, int takt) override {
    shown[Name(pfeil) + " blinks"] = takt == 0 ? "no" : "each " + std::to_string(takt) + " ms";
  }
  void ZeigePfeil(Pfeil pfeil, int phase) override {
    static constexpr std::array kColours{"yellow", "red", "none"};
    shown[Name(pfeil)] = Element(kColours, phase);
  }
  void StoppePfeil(Pfeil pfeil) override {
    StartePfeil(pfeil, 0);
    ZeigePfeil(pfeil, kKeinPfeil);
  }
  void SpieleSound(int effekt) override {
    static constexpr std::array kSounds{"", "", "question", "error", "blip", "start", "tada"};
    shown["sounds"] += std::string(shown["sounds"].empty() ? "" : " ") + Element(kSounds, effekt);
  }
  void Melde(const Meldung &meldung) override {
    shown["message"] += Line(meldung.lblTitel) + " (" + Line(meldung.lblMeldung) + ")";
  }
  bool Frage(const Meldung &meldung) override {
    Melde(meldung);
    spiel.Antwort = answers.empty() ? kAbgebrochen : answers.front();
    if (!answers.empty())
      answers.pop_front();
    return spiel.Antwort == kJa;
  }
  void BestenlistePruefen() override { shown["message"] += "[check of the best list]"; }
  void ZeigeBesteneintrag() override { shown["message"] += "[entry]"; }
  void BeendeDasSpiel() override { shown["message"] += "[end]"; }

 private:
  static std::string Name(Bedienung bedienung) {
    static constexpr std::array kNames{"next", "repeat", "save", "load", "best", "arrow is"};
    return Element(kNames, bedienung);
  }
  static std::string Name(Pfeil pfeil) {
    return pfeil == Pfeil::Start ? "start arrow" : "next arrow";
  }
  /// The lines of a text in one line.
  static std::string Line(std::string text) {
    std::erase(text, '\r');
    text.erase(0, text.find_first_not_of('\n'));
    std::replace(text.begin(), text.end(), '\n', '/');
    return text;
  }

  /// By row and negative place, so as they stand; '_' is blank, red in brackets.
  std::map<std::pair<Panelreihe, int>, std::string> digits;
  std::map<std::string, std::string> told;
};
