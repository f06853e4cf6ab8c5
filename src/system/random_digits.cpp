#include "system/random_digits.h"

#include <array>
#include <charconv>

#include "base/random_bits.h"

namespace quillomat {

std::string RandomDigits() {
  std::array<char, 16> digits{};
  return {digits.data(),
          std::to_chars(digits.data(), digits.data() + digits.size(), RandomBits(), 16).ptr};
}

}  // namespace quillomat
