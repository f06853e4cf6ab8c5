// Counting that fails instead of wrapping round: a sum that does not fit its 16 or 32 bits is the
// program's run-time error "Overflow", which ends a run. And numbers as places.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>

namespace quillomat::reference {

struct Overflow : std::runtime_error {
  Overflow() : std::runtime_error("Overflow") {}
};

/// Neither number is negative.
[[nodiscard]] inline std::int32_t Sum32(std::int32_t left, std::int32_t right) {
  if (left > std::numeric_limits<std::int32_t>::max() - right) throw Overflow();
  return left + right;
}

/// `left` and `right` are not negative, and `right` fits 16 bits.
[[nodiscard]] inline std::int32_t Sum16(std::int32_t left, std::int32_t right) {
  if (left > std::numeric_limits<std::int16_t>::max() - right) throw Overflow();
  return left + right;
}

/// `length` as a 16-bit number.
[[nodiscard]] inline std::int16_t As16(std::size_t length) {
  if (length > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) throw Overflow();
  return static_cast<std::int16_t>(length);
}

/// `number`, which is not negative, as a place in a text or a list.
[[nodiscard]] inline std::size_t Index(std::int32_t number) {
  return static_cast<std::size_t>(number);
}

}  // namespace quillomat::reference
