// Text for those who take nothing but UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// `text` with U+FFFD in place of each byte that fits nowhere: only paths have any (see utf8.h).
[[nodiscard]] std::string WellFormedText(std::string_view text);

}  // namespace quillomat
