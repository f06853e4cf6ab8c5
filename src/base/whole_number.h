// Whole numbers as people and files write them: nothing but the digits, and a minus sign in front.
#pragma once

#include <cstdint>
#include <string_view>
#include <system_error>

namespace quillomat {

/// Puts the number that all of `text` is into `number`. Otherwise leaves that as it is and returns
/// result_out_of_range for a number that does not fit, invalid_argument for any other text.
[[nodiscard]] std::errc ReadWholeNumber(std::string_view text, std::int32_t& number);

}  // namespace quillomat
