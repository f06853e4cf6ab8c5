// Which byte of UTF-16 comes first in a text without a byte-order mark.
#pragma once

#include <cstdint>
#include <string_view>

namespace quillomat {

enum class Utf16Order : std::uint8_t { kNone, kLowByteFirst, kHighByteFirst };

/// Of a text that is known to be in UTF-16, by its first bytes; never kNone.
[[nodiscard]] Utf16Order LikelierOrder(std::string_view head);

/// Of any bytes: kNone where they do not look like UTF-16.
[[nodiscard]] Utf16Order Utf16OrderOf(std::string_view head);

}  // namespace quillomat
