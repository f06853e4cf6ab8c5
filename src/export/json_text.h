// Texts in JSON.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// `text` in quotes. A path may hold bytes that are no UTF-8, for which JSON has no form: each
/// becomes U+FFFD.
[[nodiscard]] std::string QuotedJson(std::string_view text);

}  // namespace quillomat
