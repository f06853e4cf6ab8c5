// What a token is worth, as a scan remembers it.
#pragma once

#include <cstdint>

namespace quillomat {

/// What a token is worth: the place in the store of the word to be counted (less than 2^31), or one
/// of the constants below.
using TokenOutcome = std::uint32_t;

/// A word was read that is not stored.
inline constexpr TokenOutcome kWordNotStored = std::uint32_t{1} << 31U;
/// The token is no word.
inline constexpr TokenOutcome kNoWord = kWordNotStored + 1;
/// The token was not remembered.
inline constexpr TokenOutcome kUnknownToken = kWordNotStored + 2;
/// The token is several words: this, and above it a number that tells which.
inline constexpr TokenOutcome kFirstOfSeveral = kWordNotStored + 3;

[[nodiscard]] inline bool IsPlace(TokenOutcome outcome) {
  return outcome < kWordNotStored;
}
[[nodiscard]] inline bool IsSeveral(TokenOutcome outcome) {
  return outcome >= kFirstOfSeveral;
}
/// Whether the token is one word, stored or not.
[[nodiscard]] inline bool IsOneWord(TokenOutcome outcome) {
  return outcome <= kWordNotStored;
}

}  // namespace quillomat
