// Words that are made against the hash in use: all of them have the same hash, under a seed that
// their maker knows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/word_hash.h"

namespace quillomat {

/// All the words have this many letters. Their first eight are the same, and a factor of their hash
/// is 0 under the seed, so the others have no weight.
inline constexpr std::size_t kCollidingLetters = 16;
inline constexpr std::string_view kCollidingStart = "collider";

/// Under which CollidingWords collide.
[[nodiscard]] inline HashSeed SeedOfCollidingWords() {
  return {LoadNumber<std::uint64_t>(kCollidingStart.data()) ^ SpreadLength(kCollidingLetters),
          0x1234'5678'9ABC'DEF0};
}

/// `number` in so many letters.
[[nodiscard]] inline std::string InLetters(std::size_t number, std::size_t letters) {
  std::string word(letters, 'a');
  for (std::size_t i = letters; i-- > 0; number /= 26) {
    word[i] = static_cast<char>('a' + number % 26);
  }
  return word;
}

[[nodiscard]] inline std::vector<std::string> CollidingWords(std::size_t count) {
  std::vector<std::string> words;
  words.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    words.push_back(std::string(kCollidingStart) + InLetters(i, kCollidingLetters / 2));
  }
  return words;
}

}  // namespace quillomat
