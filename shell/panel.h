/// @file
/// The panel: five label pictures with the digits of points, result, errors, rest and level.
#pragma once

#include <array>

#include "core/ansicht.h"

class QWidget;
class Zifferreihe;

class Panel {
 public:
  /// @param flaeche   becomes the parent of the panel's controls.
  explicit Panel(QWidget *flaeche);

  Zifferreihe &Reihe(Panelreihe reihe) { return *reihen_.at(static_cast<std::size_t>(reihe)); }

 private:
  std::array<Zifferreihe *, 5> reihen_{};
};
