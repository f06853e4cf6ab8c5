// What the user's locale says about numbers. The program's own locale is never changed.
#pragma once

#include <string>

namespace quillomat {

/// What stands between groups of three digits, in UTF-8; "," where the locale has nothing.
[[nodiscard]] std::string DigitGroupSeparator();

}  // namespace quillomat
