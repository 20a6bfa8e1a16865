/// @file
/// A screen made of arrays, on which the rules are tested without a window.
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
  using Ziffer = std::pair<Ziffernfarbe, int>;

  std::array<Kachel, kZellen + 1> kacheln{};
  std::array<int, kZahlfelder + 1> zahlen{};
  std::array<bool, kZahlfelder + 1> zahlSichtbar{};
  std::map<std::pair<Panelreihe, int>, Ziffer> ziffern;
  std::string modustext;
  Textfarbe modusfarbe = Textfarbe::Dunkelblau;
  std::map<Bedienung, bool> sichtbar;
  bool speichernErlaubt = false;
  bool moduswahlSichtbar = true;
  std::map<Pfeil, int> timer;
  std::map<Pfeil, int> pfeile;
  std::vector<int> klaenge;
  std::vector<Meldung> meldungen;      ///< Messages and questions, in their order.
  std::deque<std::int16_t> antworten;  ///< Answers to come; an empty queue cancels.
  int bestenpruefungen = 0;
  bool beendet = false;

  Kachel LiesKachel(int zelle) const override { return kacheln.at(Index(zelle)); }
  void SetzeKachel(int zelle, Kachel kachel) override { kacheln.at(Index(zelle)) = kachel; }
  void SetzeZahl(int platz, int zahl) override { zahlen.at(Index(platz)) = zahl; }
  bool IstZahlNull(int platz) const override { return zahlen.at(Index(platz)) == 0; }
  void ZeigeZahlfeld(int platz, bool s) override { zahlSichtbar.at(Index(platz)) = s; }
  void SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) override {
    ziffern[{reihe, stelle}] = {farbe, ziffer};
  }
  void SetzeModustext(const std::string &text) override { modustext = text; }
  void SetzeModusfarbe(Textfarbe farbe) override { modusfarbe = farbe; }
  bool IstSichtbar(Bedienung b) const override {
    const auto fund = sichtbar.find(b);
    return fund != sichtbar.end() && fund->second;
  }
  void Zeige(Bedienung bedienung, bool s) override { sichtbar[bedienung] = s; }
  void ErlaubeSpeichern(bool erlaubt) override { speichernErlaubt = erlaubt; }
  void VerbergeModuswahl() override { moduswahlSichtbar = false; }
  void StelleTimer(Pfeil pfeil, int millisekunden) override { timer[pfeil] = millisekunden; }
  void ZeigePfeil(Pfeil pfeil, int phase) override { pfeile[pfeil] = phase; }
  void SpieleSound(int effekt) override { klaenge.push_back(effekt); }
  void Melde(const Meldung &meldung) override {
    if (meldung.Klang != kKeinKlang)
      SpieleSound(meldung.Klang);
    meldungen.push_back(meldung);
  }
  bool Frage(const Meldung &meldung) override {
    Melde(meldung);
    spiel.Antwort = kAbgebrochen;
    if (!antworten.empty()) {
      spiel.Antwort = antworten.front();
      antworten.pop_front();
    }
    return spiel.Antwort == kJa;
  }
  void BestenlistePruefen() override { ++bestenpruefungen; }
  void ZeigeBesteneintrag() override {}
  void BeendeDasSpiel() override { beendet = true; }

  /// The places of a row from left to right: a digit or '_' for a blank one, red ones in brackets.
  std::string Reihe(Panelreihe reihe, int von, int bis) const {
    std::string text;
    for (int stelle = bis; stelle >= von; --stelle) {
      const auto &[farbe, ziffer] = ziffern.at({reihe, stelle});
      const std::string zeichen(1, "0123456789_"[ziffer]);
      text += farbe == Ziffernfarbe::Rot ? "[" + zeichen + "]" : zeichen;
    }
    return text;
  }

 private:
  static std::size_t Index(int n) { return static_cast<std::size_t>(n); }
};
