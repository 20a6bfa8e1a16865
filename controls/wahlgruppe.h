/// @file
/// A choice of one among several faces. Each face has a normal look that takes a click, and a
/// chosen look at the same place that takes none; exactly one of the two is visible.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "controls/masse.h"

class Bild;

/// What the faces of a group have in common.
struct Wahlart {
  const char *name;         ///< Stem of the control names: `imgModus`, `imgModusWahl`.
  const char *bild;         ///< Stem of the picture names: `modus`, `modusWahl`.
  int ersterIndex;          ///< Index of the first face in its control array.
  const char *tooltip;      ///< Of the normal look.
  const char *tooltipWahl;  ///< Of the chosen look.
};

/// The modes, which the main window and the options offer alike.
inline constexpr Wahlart kModuswahl{"imgModus", "modus", 1, "Spielmodus wählen",
                                    "Aktueller Spielmodus"};

class Wahlgruppe {
 public:
  struct Wahleintrag {
    Twips lage;
    const char *ansage;
  };

  /// @param klick   is given the index of the clicked face, counted as in the control array.
  Wahlgruppe(QWidget *eltern, const Wahlart &art, const std::vector<Wahleintrag> &eintraege,
             const std::function<void(int)> &klick);

  /// Gives one face the chosen look and all others the normal one.
  void Waehle(int index);
  void Verberge();

 private:
  struct Paar {
    Bild *normal;
    Bild *gewaehlt;
  };

  int ersterIndex_;
  std::vector<Paar> paare_;
};
