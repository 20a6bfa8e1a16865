/// @file
/// A fresh record, a screen of arrays and a clock that counts, for each test of the rules.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "core/anzeige.h"
#include "core/befehle.h"
#include "core/level.h"
#include "core/zahlen.h"
#include "core/zufall.h"
#include "core/zug.h"
#include "tests/feldansicht.h"

class Kernprobe : public testing::Test {
 protected:
  Kernprobe() {
    spiel = {};
    zufall.Uhr = [saat = std::uint64_t{0}]() mutable { return ++saat; };
    WarteAufSpiel(ansicht);
    ansicht.klaenge.clear();
  }
  ~Kernprobe() override { zufall = {}; }

  /// Lays a board on the playfield and begins to play on it without any help.
  void LegeBrett(const std::vector<int> &saranten) {
    for (const int zelle : saranten)
      spiel.Feld.at(static_cast<std::size_t>(zelle)).IstSarant = true;
    spiel.Level = 1;
    spiel.Punkte = kStartpunkte;
    ZeigeStatus(ansicht);
  }

  void Klick(int zelle, int taste = kLinkeTaste) { imgSar_MouseDown(ansicht, zelle, taste); }

  /// The first cell that shows a tile and does or does not hold a gem.
  int Suche(Kachel kachel, bool istSarant) const {
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
      if (ansicht.LiesKachel(zelle) == kachel &&
          spiel.Feld.at(static_cast<std::size_t>(zelle)).IstSarant == istSarant)
        return zelle;
    }
    ADD_FAILURE() << "no such cell";
    return 1;
  }

  int Zaehle(Kachel kachel) const {
    return static_cast<int>(std::count(ansicht.kacheln.begin() + 1, ansicht.kacheln.end(), kachel));
  }

  /// Opens every gem that is still covered, as a player who knows the board would.
  void GewinneLevel() {
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
      if (spiel.Feld.at(static_cast<std::size_t>(zelle)).IstSarant &&
          ansicht.LiesKachel(zelle) == Kachel::Verdeckt)
        Klick(zelle);
    }
  }

  void VerliereLevel() {
    while (!ansicht.IstSichtbar(Bedienung::cmdWiederholen))
      Klick(Suche(Kachel::Verdeckt, false));
  }

  std::string Panel(Ziffernreihe reihe, int von, int bis) { return ansicht.Reihe(reihe, von, bis); }
  std::string Punkte() { return Panel(Ziffernreihe::imgPunkte, 0, 4); }
  std::string Levelpunkte() { return Panel(Ziffernreihe::imgLevel, 0, 2); }
  std::string Fehler() { return Panel(Ziffernreihe::imgAuswertung, 4, 5); }
  std::string Rest() { return Panel(Ziffernreihe::imgAuswertung, 2, 3); }
  std::string Level() { return Panel(Ziffernreihe::imgAuswertung, 0, 1); }

  FeldAnsicht ansicht;
};
