// The hash of a word's letters. Every byte bears on the upper bits: a table of 2^n places takes the
// upper n bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quillomat {

inline constexpr unsigned kHashBits = 32;

/// The number of the bytes at `text`.
template <typename Number>
[[nodiscard]] inline Number LoadNumber(const char* text) {
  Number number = 0;
  std::memcpy(&number, text, sizeof number);
  return number;
}

[[nodiscard]] inline std::uint32_t MixedHash(std::uint64_t first, std::uint64_t second) {
  constexpr std::uint64_t kFirst = 0x9E3779B97F4A7C15;
  constexpr std::uint64_t kSecond = 0xC2B2AE3D27D4EB4F;
  return static_cast<std::uint32_t>((first ^ second * kSecond) * kFirst >> kHashBits);
}

[[nodiscard]] inline std::uint32_t HashOfWord(std::string_view word) {
  using Eight = std::uint64_t;
  using Four = std::uint32_t;
  const char* const text = word.data();
  const std::size_t size = word.size();
  std::uint64_t second = size;
  std::size_t start = 0;
  for (; size - start > 2 * sizeof(Eight); start += sizeof(Eight)) {
    second = std::uint64_t{MixedHash(LoadNumber<Eight>(text + start), second)} + start;
  }
  // The rest in two numbers, which overlap.
  const char* const rest = text + start;
  const std::size_t left = size - start;
  if (left >= sizeof(Eight)) {
    const auto last = LoadNumber<Eight>(rest + left - sizeof(Eight));
    return MixedHash(LoadNumber<Eight>(rest), last ^ second << kHashBits);
  }
  if (left >= sizeof(Four)) {
    const std::uint64_t last = LoadNumber<Four>(rest + left - sizeof(Four));
    return MixedHash(LoadNumber<Four>(rest) | last << kHashBits, second);
  }
  std::uint64_t few = 0;
  for (std::size_t i = 0; i < left; ++i) {
    few = few << 8U | static_cast<unsigned char>(rest[i]);
  }
  return MixedHash(few, second);
}

}  // namespace quillomat
