// What must hold of bytes in any encoding that a user can choose, whatever the bytes are.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/character_set.h"

namespace quillomat::properties {

/// All that the system decodes: without "as found" and "guess".
[[nodiscard]] std::vector<CharacterSet> EncodingsToTry();

/// What does not hold, or nothing: the text is well-formed UTF-8, and neither it nor the number of
/// bytes that were not decoded depends on the blocks in which the bytes come or the text is read.
[[nodiscard]] std::string DecodingFault(CharacterSet set, std::string_view bytes);

}  // namespace quillomat::properties
