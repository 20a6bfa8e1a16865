#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "controls/masse.h"

class Bild;

/// What the options of a group have in common.
struct Wahlart {
  const char *name;         ///< Prefix of the control names: `imgModus`, `imgModusWahl`.
  const char *bild;         ///< Prefix of the picture names: `modus`, `modusWahl`.
  int ersterIndex;          ///< Index of the first option.
  const char *tooltip;      ///< Of the normal picture.
  const char *tooltipWahl;  ///< Of the selected picture.
};

/// A group of options of which at most one is selected, like radio buttons. Each option has two
/// pictures at the same place, of which one is visible: a normal one that takes a click, and one
/// for the selected option.
class Wahlgruppe {
 public:
  struct Wahleintrag {
    Twips lage;
    const char *ansage;
  };

  /// @param klick   is called with the index of the clicked option.
  Wahlgruppe(QWidget *eltern, const Wahlart &art, const std::vector<Wahleintrag> &eintraege,
             const std::function<void(int)> &klick);

  /// Shows one option as selected. Also shows the group again after Verberge().
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
