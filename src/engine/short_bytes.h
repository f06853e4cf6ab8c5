// Bytes of about the length of a word, compared and copied without a call, which would cost more
// than the work. Each is done as two numbers that may overlap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "engine/word_hash.h"

namespace quillomat {

/// As long as CopyShortBytes copies.
inline constexpr std::size_t kMostShortBytes = 32;

template <typename Number>
[[nodiscard]] inline bool EqualAsTwo(const char* left, const char* right, std::size_t size) {
  const std::size_t last = size - sizeof(Number);
  const auto differs = LoadNumber<Number>(left) ^ LoadNumber<Number>(right);
  return (differs | (LoadNumber<Number>(left + last) ^ LoadNumber<Number>(right + last))) == 0;
}

template <typename Number>
inline void CopyAsTwo(char* to, const char* from, std::size_t size) {
  const std::size_t last = size - sizeof(Number);
  const auto end = LoadNumber<Number>(from + last);
  std::memcpy(to, from, sizeof(Number));
  std::memcpy(to + last, &end, sizeof end);
}

/// Of any length.
[[nodiscard]] inline bool EqualBytes(const char* left, const char* right, std::size_t size) {
  using Eight = std::uint64_t;
  if (size > 2 * sizeof(Eight)) return std::memcmp(left, right, size) == 0;
  if (size >= sizeof(Eight)) return EqualAsTwo<Eight>(left, right, size);
  if (size >= sizeof(std::uint32_t)) return EqualAsTwo<std::uint32_t>(left, right, size);
  for (std::size_t i = 0; i < size; ++i) {
    if (left[i] != right[i]) return false;
  }
  return true;
}

/// At most kMostShortBytes. What is copied does not overlap.
inline void CopyShortBytes(char* to, const char* from, std::size_t size) {
  struct Sixteen {
    std::uint64_t low;
    std::uint64_t high;
  };
  if (size >= sizeof(Sixteen)) return CopyAsTwo<Sixteen>(to, from, size);
  if (size >= sizeof(std::uint64_t)) return CopyAsTwo<std::uint64_t>(to, from, size);
  if (size >= sizeof(std::uint32_t)) return CopyAsTwo<std::uint32_t>(to, from, size);
  for (std::size_t i = 0; i < size; ++i) to[i] = from[i];
}

}  // namespace quillomat
