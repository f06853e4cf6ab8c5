// Texts with places for values: "File %1 of %2".
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace quillomat {

/// `pattern` with "%1" replaced by the first value, "%2" by the second, up to "%9". A "%" of a
/// value is just that; a place without a value stays as it is.
[[nodiscard]] std::string Filled(std::string_view pattern, std::span<const std::string> values);
[[nodiscard]] std::string Filled(std::string_view pattern,
                                 std::initializer_list<std::string> values);

}  // namespace quillomat
