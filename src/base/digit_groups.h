// The sign between groups of three digits, beside the one before the decimals.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// `wanted`, unless it is nothing or the sign of the decimals: then ",", or "." where that is it.
[[nodiscard]] inline std::string GroupSignBeside(std::string_view decimal, std::string wanted) {
  if (!wanted.empty() && wanted != decimal) return wanted;
  return decimal == "," ? "." : ",";
}

}  // namespace quillomat
