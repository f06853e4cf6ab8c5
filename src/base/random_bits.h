// Chance for what nobody shall foresee, and for names that nobody else has.
#pragma once

#include <cstdint>

namespace quillomat {

/// From the system; from the clock where that has none to give.
[[nodiscard]] std::uint64_t RandomBits();

}  // namespace quillomat
