#include "core/zufall.h"

#include <bit>
#include <chrono>

std::uint64_t LiesUhr() {
  // The calendar clock is coarse on some systems. The steady clock differs between two draws.
  const auto kalender = std::chrono::system_clock::now().time_since_epoch().count();
  const auto stetig = std::chrono::steady_clock::now().time_since_epoch().count();
  return static_cast<std::uint64_t>(kalender) ^ std::rotl(static_cast<std::uint64_t>(stetig), 32);
}

void Zufall::Saee() {
  generator_.seed(Uhr());
}

double Zufall::Zahl() {
  // 53 bits are the mantissa of a double: the result is exact and never rounded up to 1.
  return static_cast<double>(generator_() >> 11) * 0x1p-53;
}
