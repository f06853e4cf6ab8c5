// The hash of a word's letters. Every byte, and every bit of a seed that nobody can foresee, bears
// on the upper bits: a table of 2^n places takes the upper n bits.
//
// Who writes a text does not know the seed, and so cannot choose words that meet in one place of a
// table. A table that is crowded nevertheless draws another seed. What is counted, and in which
// order, never depends on the seed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quillomat {

/// What a table mixes into its hashes.
struct HashSeed {
  std::uint64_t first = 0;
  std::uint64_t second = 0;
};

/// A seed that cannot be foreseen: another in every run of the program.
[[nodiscard]] const HashSeed& DrawnHashSeed();

/// Another seed, which cannot be foreseen either if `seed` cannot.
[[nodiscard]] HashSeed HashSeedAfter(const HashSeed& seed);

/// The bits of a hash that a table keeps.
inline constexpr unsigned kHashBits = 32;

/// The number of the bytes at `text`.
template <typename Number>
[[nodiscard]] inline Number LoadNumber(const char* text) {
  Number number{};
  std::memcpy(&number, text, sizeof number);
  return number;
}

/// Both halves of the product, of 128 bits, in one number. The lower half is multiplied on its own:
/// asked for both halves of one product, compilers send them through the memory.
[[nodiscard]] inline std::uint64_t FoldedProduct(std::uint64_t left, std::uint64_t right) {
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(left) * right;
  return left * right ^ static_cast<std::uint64_t>(product >> 64U);
}

/// The hash of two numbers.
[[nodiscard]] inline std::uint32_t MixedHash(std::uint64_t first, std::uint64_t second,
                                             const HashSeed& seed) {
  return static_cast<std::uint32_t>(FoldedProduct(first ^ seed.first, second ^ seed.second) >>
                                    kHashBits);
}

/// What the length of a word gives to its hash: unlike anything that letters can make up for.
[[nodiscard]] constexpr std::uint64_t SpreadLength(std::size_t bytes) {
  return std::uint64_t{bytes} * 0x9E3779B97F4A7C15;
}

/// Lets every bit of `state` bear on all the others: one product leaves words that are alike, such
/// as numbers in letters, close together under one seed in a hundred.
[[nodiscard]] inline std::uint64_t Stirred(std::uint64_t state) {
  return FoldedProduct(state, 0x9E3779B97F4A7C15);
}

/// All 64 bits of a word's hash.
[[nodiscard]] inline std::uint64_t LongHashOfWord(std::string_view word, const HashSeed& seed) {
  using Eight = std::uint64_t;
  using Four = std::uint32_t;
  constexpr std::size_t kAtOnce = 2 * sizeof(Eight);
  const char* rest = word.data();
  std::size_t left = word.size();
  std::uint64_t state = seed.first ^ SpreadLength(left);
  for (; left > kAtOnce; rest += kAtOnce, left -= kAtOnce) {
    state = FoldedProduct(LoadNumber<Eight>(rest) ^ state,
                          LoadNumber<Eight>(rest + sizeof(Eight)) ^ seed.second);
  }
  // The rest in two numbers, which overlap.
  std::uint64_t first = 0;
  std::uint64_t second = 0;
  if (left >= sizeof(Eight)) {
    first = LoadNumber<Eight>(rest);
    second = LoadNumber<Eight>(rest + left - sizeof(Eight));
  } else if (left >= sizeof(Four)) {
    first = LoadNumber<Four>(rest);
    second = LoadNumber<Four>(rest + left - sizeof(Four));
  } else {
    for (std::size_t i = 0; i < left; ++i) {
      first = first << 8U | static_cast<unsigned char>(rest[i]);
    }
  }
  return Stirred(FoldedProduct(first ^ state, second ^ seed.second));
}

/// Its upper kHashBits.
[[nodiscard]] inline std::uint32_t HashOfWord(std::string_view word, const HashSeed& seed) {
  return static_cast<std::uint32_t>(LongHashOfWord(word, seed) >> kHashBits);
}

}  // namespace quillomat
