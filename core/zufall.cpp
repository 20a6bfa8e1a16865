#include "core/zufall.h"

#include <bit>
#include <chrono>

std::uint64_t LiesUhr() {
  // Some systems have a coarse calendar clock. The steady clock makes two draws differ.
  const auto kalender = std::chrono::system_clock::now().time_since_epoch().count();
  const auto stetig = std::chrono::steady_clock::now().time_since_epoch().count();
  return static_cast<std::uint64_t>(kalender) ^ std::rotl(static_cast<std::uint64_t>(stetig), 32);
}

void Zufall::Saee() { generator_.seed(Uhr()); }

double Zufall::Zahl() {
  // A double has 53 bits of mantissa. More bits could round the result up to 1.
  return static_cast<double>(generator_() >> 11) * 0x1p-53;
}
