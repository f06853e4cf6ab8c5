// What the user's locale says about numbers. The program's own locale is never changed.
#pragma once

#include <string>

namespace quillomat {

/// What stands between groups of three digits, in UTF-8. Where the locale has nothing, or its
/// decimal sign, ","; or "." if the comma is that sign.
[[nodiscard]] std::string DigitGroupSeparator();

/// What stands before the decimals, in UTF-8; "." where the locale has nothing.
[[nodiscard]] std::string DecimalSign();

}  // namespace quillomat
