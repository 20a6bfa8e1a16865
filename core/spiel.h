#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

inline constexpr int kZellen = 100;  ///< Cells are numbered 1 to 100, row by row from the top left.
inline constexpr int kZahlfelder = 100;    ///< Clue places, five for each of 20 lines, from 1.
inline constexpr int kLinie = 10;          ///< Cells in a row or a column.
inline constexpr int kPlaetzeJeLinie = 5;  ///< Clue places of a line.
inline constexpr int kLetztesLevel = 40;   ///< The game ends when this level is won.
inline constexpr int kStartpunkte = 500;   ///< Points of a new game at level 1.
inline constexpr int kErlaubteFehler = 1;  ///< One more wrong cell loses the level.
inline constexpr int kModi = 3;            ///< Modes, numbered from 1.
constexpr bool IstModus(int modus) {       // A file can hold any number.
  return modus >= 1 && modus <= kModi;
}
inline constexpr std::int16_t kModusNormal = 2;
inline constexpr std::int16_t kModusExperte = 3;
inline constexpr int kBeste = 5;  ///< Entries of the best list, numbered from 0, best first.

/// The tile that a cell shows. The state of play of a cell is stored nowhere else.
enum class Kachel { Verdeckt, Markiert, Fehler, Sarant };

/// Gems of a level.
constexpr std::int16_t SarantenFuer(int level) { return static_cast<std::int16_t>(76 - level); }

/// An element of an array or vector by a signed index or an enumerator. Checks the bounds.
template <typename Reihe, typename Index>
constexpr auto &Element(Reihe &reihe, Index index) {
  return reihe.at(static_cast<std::size_t>(index));
}

struct Zelle {
  bool IstSarant = false;  ///< The cell holds a gem. Changes only when a level begins.
  bool Gezogen = false;    ///< Drawn by `ZieheStartfeld`. `ExternerKlick` resets it.
};

/// The best list in memory: names and points as text, exactly as in the file. After a failed load
/// the lists hold what was read before the failure and may be shorter than five.
struct Bestenliste {
  std::vector<std::string> lstName;    ///< UTF-8.
  std::vector<std::string> lstPunkte;  ///< UTF-8: a damaged file may hold anything.
  std::int16_t BestenPlatz = -1;       ///< Index of the player's new entry; -1: none.
  bool BestenEintrag = false;          ///< The window of the list takes the name of a new entry.
};

/// The game record: all state of the game except the tiles of the cells. A new `Spiel` is the state
/// at the start of the process. Counters of 16 bits and numbers as text are kept on purpose.
struct Spiel {
  std::int16_t Level = 0;         ///< Current level, 1 to 40; 0 before the first.
  std::int32_t Punkte = 0;        ///< Total points. Not 0 counts as a running game.
  std::int32_t Levelpunkte = 0;   ///< Result of the level, not yet added to `Punkte`.
  std::int16_t Fehler = 0;        ///< Cells that show `Kachel::Fehler`; recounted at each move.
  std::int16_t SarantenRest = 0;  ///< Gems not yet opened. A move that leaves 0 wins the level.
  std::int16_t AnzahlSaranten = SarantenFuer(1);  ///< Gems of the level.
  std::int16_t Startfelder = 0;  ///< Gems that are opened for the player when a level begins.
  std::int16_t Spielmodus = kModusNormal;

  std::array<Zelle, kZellen + 1> Feld{};  ///< The board. Index 0 is unused; see ZelleVon().
  /// Gem cells in the order of their draw, from index 1. Never read; kept on purpose.
  std::array<std::int16_t, kZellen + 1> SarantenListe{};
  std::vector<std::string> lstWiederHolen;  ///< The same cells as decimal text, from index 0.

  std::array<std::string, kModi> ModusNamen{"Einfach", "Normal", "Experte"};
  std::int16_t Antwort = 0;       ///< Answer to the last question: `kJa`, `kNein`, `kAbgebrochen`.
  bool SoundAn = true;            ///< The player's switch for sound effects; not saved.
  bool DatenordnerAktiv = false;  ///< False: the data are in the program's own folder.
  std::string Datenordner;        ///< Folder of the data, UTF-8, without a trailing separator.
  Bestenliste Beste;
  std::int32_t Bestenschwelle = 0;    ///< Points of the lowest entry, as last read or written.
  std::int16_t WeiterBlinkphase = 0;  ///< Phase 0 or 1 of the arrow `imgWeiter`.
  std::int16_t StartBlinkphase = 0;   ///< Phase 0 or 1 of the arrow `imgZeigeStart`.

  /// @param nummer   1 to 100.
  Zelle &ZelleVon(int nummer) { return Element(Feld, nummer); }
};

/// The only instance. All modules read and write it.
inline Spiel spiel;

/// Values of `Spiel::Antwort`. All callers test only for `kJa`.
inline constexpr std::int16_t kJa = 1;
inline constexpr std::int16_t kNein = 2;
inline constexpr std::int16_t kAbgebrochen = 3;

/// `Punkte` + `Levelpunkte`, limited to the range of 32 bits.
std::int32_t SummePunkte();

/// The name of a mode. @param modus   1 to 3.
inline const std::string &ModusName(int modus) { return Element(spiel.ModusNamen, modus - 1); }
