#pragma once

#include <string>

#include "core/meldungen.h"
#include "core/spiel.h"

/// Controls that `Zeige` shows and hides. The level is won while `imgNextLevel` is visible, and
/// lost while `cmdWiederholen` is visible.
enum class Bedienung {
  imgNextLevel,
  cmdWiederholen,
  imgSpeichern,  ///< Its menu entry is enabled and disabled with it.
  imgOeffnen,    ///< The same.
  imgBester,
  imgWeiter,  ///< Never hidden: its arrow goes when it shows no picture.
};

/// The two blinking arrows. Each has its own timer.
enum class Pfeil {
  Start,   ///< `imgZeigeStart` with `timStart`, points at `imgNeuesSpiel`.
  Weiter,  ///< `imgWeiter` with `timNaechsterLevel`, points at `imgNextLevel`.
};

inline constexpr int kKeinPfeil = 2;  ///< Phase of an arrow that has no picture.

/// The rows of the panel from top to bottom.
enum class Panelreihe {
  Punkte,        ///< `imgPunkte`(0) to (4)
  Levelpunkte,   ///< `imgLevel`(0) to (2)
  Fehlversuche,  ///< `imgAuswertung`(4) and (5)
  NochOffen,     ///< `imgAuswertung`(2) and (3)
  Level,         ///< `imgAuswertung`(0) and (1)
};

enum class Ziffernfarbe { Gruen, Rot };
inline constexpr int kLeereZiffer = 10;  ///< The digit picture with all segments unlit.

/// The screen as the rules see it. The main window implements it, and so do the tests. The rules
/// read back the tiles, which clue places are empty, and which buttons are visible.
class Ansicht {
 public:
  virtual ~Ansicht() = default;

  // Playfield. Cells and clue places are numbered from 1 to 100.
  virtual Kachel LiesKachel(int zelle) const = 0;
  virtual void SetzeKachel(int zelle, Kachel kachel) = 0;
  /// @param zahl   0 (empty) to 10.
  virtual void SetzeZahl(int platz, int zahl) = 0;
  virtual bool IstZahlNull(int platz) const = 0;
  virtual void ZeigeZahlfeld(int platz, bool sichtbar) = 0;

  // Panel and texts.
  /// @param stelle   0 is the units place, @param ziffer 0 to 9, or `kLeereZiffer`.
  virtual void SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) = 0;
  virtual void SetzeModustext(const std::string &text) = 0;
  /// Makes the text of `lblModus` blue. Nothing makes it dark blue again.
  virtual void FaerbeModustext() = 0;

  // Buttons and arrows.
  virtual bool IstSichtbar(Bedienung bedienung) const = 0;
  virtual void Zeige(Bedienung bedienung, bool sichtbar) = 0;
  /// Hides the choice of the mode. Nothing shows it again.
  virtual void VerbergeModuswahl() = 0;
  /// Starts the timer of an arrow, without changing its picture. @param takt   milliseconds.
  virtual void StartePfeil(Pfeil pfeil, int takt) = 0;
  /// @param phase   0 yellow, 1 red, or `kKeinPfeil`.
  virtual void ZeigePfeil(Pfeil pfeil, int phase) = 0;
  /// Stops the timer of an arrow and removes its picture.
  virtual void StoppePfeil(Pfeil pfeil) = 0;

  // Sounds and windows.
  /// @param effekt   1 to 6, see meldungen.h.
  virtual void SpieleSound(int effekt) = 0;
  /// `Melde` and `Frage` play the sound of the message and return when its window has closed.
  virtual void Melde(const Meldung &meldung) = 0;
  /// Stores the answer in `spiel.Antwort`. @return true if it is yes.
  virtual bool Frage(const Meldung &meldung) = 0;
  /// A step of persistence/modBeste, which the rules do not see.
  virtual void BestenlistePruefen() = 0;
  /// Lets the player name the new entry. Returns when the window has closed.
  virtual void ZeigeBesteneintrag() = 0;
  virtual void BeendeDasSpiel() = 0;
};
