/// @file
/// The random generator.
#pragma once

#include <cstdint>
#include <functional>
#include <random>

/// A seed from the calendar clock and the steady clock of the machine.
std::uint64_t LiesUhr();

/// A random generator that is seeded from a clock. A test replaces the clock by a counter, so that
/// the same boards are dealt again.
class Zufall {
 public:
  std::function<std::uint64_t()> Uhr = LiesUhr;  ///< Returns the seed.

  void Saee();
  /// A random number, uniform in 0 <= r < 1.
  double Zahl();

 private:
  std::mt19937_64 generator_;
};

inline Zufall zufall;
