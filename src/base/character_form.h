// Which bytes stand together as one character in the encodings where characters differ in length.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "base/character_set.h"

namespace quillomat {

/// No set of bytes has longer ones.
inline constexpr std::size_t kMostBytesOfCharacter = 4;

/// How many bytes at the start of `bytes`, which is not empty, have the form of one character of
/// `set`, whether or not there is such a character: 1 where the first byte leads none, or others
/// stand behind it than can follow. Nothing where that depends on bytes to come.
[[nodiscard]] std::optional<std::size_t> BytesOfForm(CharacterSet set, std::string_view bytes);

/// Whether any character of `set` has more than one byte.
[[nodiscard]] bool HasLongForms(CharacterSet set);

}  // namespace quillomat
