/// @file
/// The game record: everything that a running game remembers, except the tiles that the cells show.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

inline constexpr int kZellen = 100;  ///< Cells are numbered 1 to 100, row by row from the top left.
inline constexpr int kZahlfelder = 100;    ///< Clue places, five to each of the 20 lines, from 1.
inline constexpr int kLinie = 10;          ///< Cells in a row or a column.
inline constexpr int kPlaetzeJeLinie = 5;  ///< Clue places of a line.
inline constexpr int kLetztesLevel = 40;   ///< The game ends when this level is won.
inline constexpr int kStartpunkte = 500;   ///< Points of a new game at level 1.
inline constexpr int kErlaubteFehler = 1;  ///< Wrong cells that a level forgives.
inline constexpr int kModi = 3;            ///< Modes, numbered from 1.
inline constexpr std::int16_t kModusNormal = 2;
inline constexpr std::int16_t kModusExperte = 3;
inline constexpr int kBeste = 5;  ///< Entries of the best list, numbered from 0, best first.

/// The tile that a cell shows. It is the only record of what has happened to the cell.
enum class Kachel { Verdeckt, Markiert, Fehler, Sarant };

/// One cell of the board.
struct Zelle {
  bool IstSarant = false;  ///< The cell holds a gem. Changes only when a level begins.
  bool Gezogen = false;    ///< Was drawn in this `ExternerKlick`. Meaningless outside of it.
};

/// The best list in memory: names and points as decimal text, exactly as the file holds them. After
/// a failed load they hold the lines read before the failure, so they may be shorter than five.
struct Bestenliste {
  std::vector<std::string> lstName;    ///< UTF-8.
  std::vector<std::string> lstPunkte;  ///< UTF-8: a damaged file may hold anything.
  std::int16_t BestenPlatz = -1;       ///< Index of the entry that the player would take; -1: none.
  bool BestenEintrag = false;          ///< The player has accepted an entry that is not named yet.
};

/// The game record. A fresh `Spiel` is the state at the start of the process.
struct Spiel {
  std::int16_t Level = 0;            ///< Running level, 1 to 40; 0 before the first.
  std::int32_t Punkte = 0;           ///< Total points. Not 0 counts as a running game.
  std::int32_t Levelpunkte = 0;      ///< Result of the level, not yet part of `Punkte`.
  std::int16_t Fehler = 0;           ///< Cells that show `Kachel::Fehler`; recounted at each move.
  std::int16_t SarantenRest = 0;     ///< Gems not yet opened; 0 means that the level is won.
  std::int16_t AnzahlSaranten = 75;  ///< Gems on the board: 76 - `Level`.
  std::int16_t Startfelder = 0;      ///< Gems that are opened for the player when a level begins.
  std::int16_t Spielmodus = kModusNormal;

  std::array<Zelle, kZellen + 1> Feld{};  ///< The board. Index 0 is unused; see ZelleVon().
  /// Gem cells in the order of their draw, from index 1. Written, but never read.
  std::array<std::int16_t, kZellen + 1> SarantenListe{};
  std::vector<std::string> lstWiederHolen;  ///< The same cells as decimal text, from index 0.

  std::array<std::string, kModi> ModusNamen{"Einfach", "Normal", "Experte"};
  std::int16_t Antwort = 0;       ///< Answer to the last question: `kJa`, `kNein`, `kAbgebrochen`.
  bool SoundAn = true;            ///< The player's switch for sound effects; not stored.
  bool DatenordnerAktiv = false;  ///< False: data lie in the program's own folder.
  std::string Datenordner;        ///< Folder of the data, UTF-8, without a closing separator.
  Bestenliste Beste;
  std::int32_t Bestenschwelle = 0;    ///< Points of the lowest entry of the best list.
  std::int16_t WeiterBlinkphase = 0;  ///< Phase 0 or 1 of the arrow `imgWeiter`.
  std::int16_t StartBlinkphase = 0;   ///< Phase 0 or 1 of the arrow `imgZeigeStart`.

  /// @param nummer   1 to 100.
  Zelle &ZelleVon(int nummer) { return Feld.at(static_cast<std::size_t>(nummer)); }
};

/// The one instance, which every module reads and writes.
inline Spiel spiel;

/// Values of `Spiel::Antwort`. Every caller tests for `kJa` alone.
inline constexpr std::int16_t kJa = 1;
inline constexpr std::int16_t kNein = 2;
inline constexpr std::int16_t kAbgebrochen = 3;

/// `Punkte` + `Levelpunkte`, limited to the range of 32 bits.
std::int32_t SummePunkte();

/// The name of a mode. @param modus   1 to 3.
inline const std::string &ModusName(int modus) {
  return spiel.ModusNamen.at(static_cast<std::size_t>(modus - 1));
}
