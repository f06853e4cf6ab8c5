// The operating system's own knowledge of encodings.
#pragma once

#include <memory>

#include "base/character_set.h"
#include "base/text_decoder.h"

namespace quillomat {

/// What decodes texts of that set, which is one: neither kAsFound nor kGuess. Throws RunTimeError
/// 380 where the system does not know it. A byte that begins no character becomes a replacement
/// character.
[[nodiscard]] std::unique_ptr<TextDecoder> MakeTextDecoder(CharacterSet set);

/// Whether the system knows that set, which is neither kAsFound nor kGuess.
[[nodiscard]] bool CanDecode(CharacterSet set);

}  // namespace quillomat
