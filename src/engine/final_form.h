// The final form of a word: what is left of a token when the rules that shorten it have had their
// turn.
#pragma once

#include <string_view>

#include "engine/scan_settings.h"

namespace quillomat {

/// The signs that are taken off the end of every word.
inline constexpr std::string_view kTrimmedFromWords = "-'.,:()";

/// Views into the token.
struct FinalForm {
  /// Without the signs at its end; empty for a token of such signs alone.
  std::string_view trimmed;
  /// What is counted: the same, without its final s, or nothing where it is what an apostrophe has
  /// left behind.
  std::string_view word;
};

/// Of a token of a text to be counted, which starts as words may start.
[[nodiscard]] FinalForm FinalFormOf(std::string_view token, const ScanChoices& choices);

}  // namespace quillomat
