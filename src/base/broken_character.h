// Bytes that an East Asian set has no character for.
#pragma once

#include <cstddef>
#include <string_view>

#include "base/character_set.h"

namespace quillomat {

/// How many bytes at the start of `bytes`, which begin with no character of `set`, stand together
/// in the place of one: those of a pair whose halves are in range, so that its second half does not
/// become the first of another; otherwise 1. 0 where that depends on bytes to come.
[[nodiscard]] std::size_t BytesOfBrokenCharacter(CharacterSet set, std::string_view bytes);

}  // namespace quillomat
