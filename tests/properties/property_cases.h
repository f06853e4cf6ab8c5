// How many random cases a property is held against.
#pragma once

#include <cstdlib>
#include <string>

namespace quillomat::properties {

/// As many as the environment variable QUILLOMAT_PROPERTY_CASES says, where every case takes long.
[[nodiscard]] inline int CasesPerSeed() {
  constexpr int kUsual = 12'000;
  const char* const wanted = std::getenv("QUILLOMAT_PROPERTY_CASES");
  return wanted != nullptr ? std::stoi(wanted) : kUsual;
}

}  // namespace quillomat::properties
