#include "core/spiel.h"

#include <algorithm>
#include <limits>

std::int32_t SummePunkte() {
  using Grenzen = std::numeric_limits<std::int32_t>;
  const std::int64_t summe = std::int64_t{spiel.Punkte} + spiel.Levelpunkte;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(summe, Grenzen::min(), Grenzen::max()));
}
