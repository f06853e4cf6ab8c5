// A text of any bytes as one line of well-formed UTF-8, and back. Control characters, "%" and what
// is no UTF-8 are written as "%" and two hexadecimal digits, byte by byte; all else stays readable.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

[[nodiscard]] std::string EscapedText(std::string_view text);

/// The text that was escaped, or nothing for a "%" without its two digits.
[[nodiscard]] std::optional<std::string> UnescapedText(std::string_view escaped);

}  // namespace quillomat
