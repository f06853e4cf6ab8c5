// Digits that make the name of a temporary file one that nobody else has, or can guess.
#pragma once

#include <string>

namespace quillomat {

/// Up to 16 hexadecimal digits.
[[nodiscard]] std::string RandomDigits();

}  // namespace quillomat
