#pragma once

#include <array>

#include "core/ansicht.h"

class QWidget;
class Zifferreihe;

/// The panel at the left of the main window: five label pictures with rows of digits.
class Panel {
 public:
  /// @param flaeche   becomes the parent of the panel's controls.
  explicit Panel(QWidget *flaeche);

  Zifferreihe &Reihe(Panelreihe reihe) { return *Element(reihen_, reihe); }

 private:
  std::array<Zifferreihe *, 5> reihen_{};
};
