// Texts in JSON.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// `text` in quotes, as WellFormedText has it.
[[nodiscard]] std::string QuotedJson(std::string_view text);

}  // namespace quillomat
