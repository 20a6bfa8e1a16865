/// @file
/// The one contract between the rules and the screen. The main window implements it, and so do the
/// tests. It holds no state of the rules; what the screen shows is read back from it where the
/// rules say so.
#pragma once

#include <cstdint>
#include <string>

#include "core/meldungen.h"
#include "core/spiel.h"

/// Controls that the rules show and hide. Which of them is visible is the phase of play.
enum class Bedienung {
  imgNextLevel,
  cmdWiederholen,
  imgSpeichern,
  imgOeffnen,
  imgBester,
  imgWeiter
};

/// The two blinking arrows, each driven by a timer of its own.
enum class Pfeil {
  Start,   ///< `imgZeigeStart`, driven by `timStart`, points at `imgNeuesSpiel`.
  Weiter,  ///< `imgWeiter`, driven by `timNaechsterLevel`, points at `imgNextLevel`.
};

/// Phases of an arrow: yellow, red, or no picture at all.
inline constexpr int kKeinPfeil = 2;

/// Rows of digit places in the panel; place 0 of a row holds the units.
enum class Panelreihe { imgPunkte, imgLevel, imgAuswertung };

enum class Ziffernfarbe { Gruen, Rot };
inline constexpr int kLeereZiffer = 10;  ///< The digit picture with all segments unlit.

/// Colours of the text in `lblModus`.
enum class Textfarbe { Dunkelblau, Blau };

class Ansicht {
 public:
  virtual ~Ansicht() = default;

  // Playfield. Cells and clue places are numbered from 1 to 100.
  virtual Kachel LiesKachel(int zelle) const = 0;
  virtual void SetzeKachel(int zelle, Kachel kachel) = 0;
  /// Lets a clue place show a number from 0 to 10; 0 is the empty plate.
  virtual void SetzeZahl(int platz, int zahl) = 0;
  virtual bool IstZahlNull(int platz) const = 0;
  virtual void ZeigeZahlfeld(int platz, bool sichtbar) = 0;

  // Panel and texts.
  /// @param ziffer   0 to 9, or `kLeereZiffer`.
  virtual void SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) = 0;
  virtual void SetzeModustext(const std::string &text) = 0;
  virtual void SetzeModusfarbe(Textfarbe farbe) = 0;

  // Phase of play.
  virtual bool IstSichtbar(Bedienung bedienung) const = 0;
  virtual void Zeige(Bedienung bedienung, bool sichtbar) = 0;
  /// Enables or disables the menu entry that saves the game.
  virtual void ErlaubeSpeichern(bool erlaubt) = 0;
  /// Hides the mode row for the rest of the run.
  virtual void VerbergeModuswahl() = 0;
  /// Lets the timer of an arrow tick at an interval in milliseconds; 0 stops it.
  virtual void StelleTimer(Pfeil pfeil, int millisekunden) = 0;
  /// @param phase   0 yellow, 1 red, `kKeinPfeil` nothing.
  virtual void ZeigePfeil(Pfeil pfeil, int phase) = 0;

  // Sounds and windows.
  virtual void SpieleSound(int effekt) = 0;
  /// Both play the sound of the message and return when its window has closed.
  virtual void Melde(const Meldung &meldung) = 0;
  /// Leaves the answer in `spiel.Antwort`; true if it is yes.
  virtual bool Frage(const Meldung &meldung) = 0;
  virtual void BestenlistePruefen() = 0;
  /// Lets the player type a name into the row of the new entry; returns when the window has closed.
  virtual void ZeigeBesteneintrag() = 0;
  virtual void BeendeDasSpiel() = 0;
};
