// The guess at the encoding of bytes that are neither well-formed UTF-8 nor UTF-16.
#pragma once

#include <string_view>

#include "base/character_set.h"

namespace quillomat {

/// kUtf8 where all but a few bytes are, and kAsFound where those stand in lines of their own, or
/// nothing can be guessed. Of sets with the same letters the one with the most other characters.
/// The texts of DOS and of the Macintosh are told by what they become in the set that they are
/// taken for.
[[nodiscard]] CharacterSet GuessLegacySet(std::string_view head);

}  // namespace quillomat
