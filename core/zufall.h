/// @file
/// The one source of chance, behind a seam so that a test can have a board again.
#pragma once

#include <cstdint>
#include <functional>
#include <random>

/// Reads the clocks of the machine; two calls differ as soon as the finest of them has ticked.
std::uint64_t LiesUhr();

/// A random generator that is seeded from a clock.
class Zufall {
 public:
  std::function<std::uint64_t()> Uhr = LiesUhr;  ///< Gives the seed; a test puts a counter here.

  /// Seeds the generator from the clock.
  void Saee();
  /// A number that is uniform in the half-open range 0 to 1.
  double Zahl();

 private:
  std::mt19937_64 generator_;
};

inline Zufall zufall;
