#include "system/random_digits.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <random>

namespace quillomat {

std::string RandomDigits() {
  std::random_device random;
  const std::uint64_t number = std::uint64_t{random()} << 32U | random();
  std::array<char, 16> digits{};
  return {digits.data(),
          std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr};
}

}  // namespace quillomat
