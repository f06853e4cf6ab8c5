// Bytes that may be a text in an encoding, in part.
#pragma once

#include <string>

#include "base/character_set.h"
#include "properties/count_case.h"

namespace quillomat::properties {

/// Up to a few hundred of all kinds: any, those that lead characters, pieces of a text in the
/// encoding.
[[nodiscard]] std::string RandomBytes(Random& random, CharacterSet set);

}  // namespace quillomat::properties
