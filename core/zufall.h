#pragma once

#include <cstdint>
#include <functional>
#include <random>

/// A seed from the calendar clock and the steady clock of the machine.
std::uint64_t LiesUhr();

/// The random generator, seeded from a clock. Tests replace the clock by a counter, so that they
/// get the same boards each time.
class Zufall {
 public:
  std::function<std::uint64_t()> Uhr = LiesUhr;  ///< Returns the seed.

  /// Seeds the generator from the clock.
  void Saee();
  /// A random number, uniform in 0 <= r < 1.
  double Zahl();

 private:
  std::mt19937_64 generator_;
};

inline Zufall zufall;
