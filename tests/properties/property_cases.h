// How many random cases a property is held against, and which.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

namespace quillomat::properties {

/// As many as the environment variable QUILLOMAT_PROPERTY_CASES says, where every case takes long.
[[nodiscard]] inline int CasesPerSeed() {
  constexpr int kUsual = 12'000;
  const char* const wanted = std::getenv("QUILLOMAT_PROPERTY_CASES");
  return wanted != nullptr ? std::stoi(wanted) : kUsual;
}

/// Another one with every run, which is printed. The environment variable QUILLOMAT_PROPERTY_SEED
/// brings a printed one back.
[[nodiscard]] inline std::uint64_t FreshSeed() {
  const char* const wanted = std::getenv("QUILLOMAT_PROPERTY_SEED");
  const std::uint64_t seed = wanted != nullptr ? std::stoull(wanted) : std::random_device()();
  std::cout << "fresh seed " << seed << std::endl;
  return seed;
}

}  // namespace quillomat::properties
