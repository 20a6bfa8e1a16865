/// @file
/// The panel: five labels with the digits of points, result, level, rest and errors.
#pragma once

#include <array>

#include "core/ansicht.h"

class QWidget;
class Zifferreihe;

class Panel {
 public:
  /// Its controls become direct children of the window's surface.
  explicit Panel(QWidget *flaeche);

  void SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer);

 private:
  std::array<Zifferreihe *, 5> reihen_{};  ///< In the order of the table.
};
