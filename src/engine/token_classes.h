// Finds the tokens of a text: the longest runs of bytes that may belong to a word. Every word lies
// inside one token, and what becomes of a token does not depend on what stands around it. Finds the
// signs of comments, too.
//
// Many bytes are classified at a time, with the vector instructions of the machine that the program
// runs on. The portable function does the same byte by byte.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "engine/scan_settings.h"

namespace quillomat {

/// Which bytes belong to tokens: letters, the extra characters that are allowed, and all bytes
/// above 127, of which some are parts of letters.
class TokenClasses {
 public:
  TokenClasses(bool allowDigits, std::string_view extras);

  [[nodiscard]] bool Holds(char ch) const {
    const auto byte = static_cast<unsigned char>(ch);
    return byte >= 0x80 || (rows_[byte & 0xFU] >> (byte >> 4U) & 1U) != 0;
  }

  /// By the lower four bits of a byte: bit n is set when the byte whose upper four bits are n
  /// belongs to tokens (n is 0 to 7).
  [[nodiscard]] const std::array<std::uint8_t, 16>& Rows() const { return rows_; }

 private:
  std::array<std::uint8_t, 16> rows_{};
};

inline constexpr std::size_t kBytesPerMask = 64;
/// How many edges may be written at once: some more than there are, so that how often a loop runs
/// is easy to foresee.
inline constexpr std::size_t kEdgesAtOnce = 32;

/// Sets bit i of masks[k] when byte 64 k + i of `text` belongs to a token. `masks` has one element
/// for every 64 bytes that have begun; bits behind the end of the text are 0.
void FindTokenBytes(const TokenClasses& classes, std::string_view text,
                    std::span<std::uint64_t> masks);

/// The same without vector instructions.
void FindTokenBytesPortably(const TokenClasses& classes, std::string_view text,
                            std::span<std::uint64_t> masks);

/// Two signs that are looked for at once; twice the same for a single one.
struct SignPair {
  char one;
  char other;
};

/// Where signs stand in a text.
class SignPlaces {
 public:
  /// Looks at a text and forgets the text before.
  void Find(SignPair signs, std::string_view text);
  /// The first place at or behind `position`; the size of the text behind the last.
  [[nodiscard]] std::size_t Next(std::size_t position) const {
    std::size_t k = position / kBytesPerMask;
    if (k >= masks_.size()) return size_;
    std::uint64_t signs = masks_[k] & ~std::uint64_t{0} << position % kBytesPerMask;
    while (signs == 0) {
      if (++k == masks_.size()) return size_;
      signs = masks_[k];
    }
    return k * kBytesPerMask + static_cast<std::size_t>(std::countr_zero(signs));
  }

 private:
  std::vector<std::uint64_t> masks_;
  std::size_t size_ = 0;
};

/// The tokens of a text, which has less than 2^32 bytes.
class TokenEdges {
 public:
  /// Looks at the bytes of a text and forgets the text before.
  void Classify(const TokenClasses& classes, std::string_view text);
  /// The bytes from `first` to before `end` belong to no token.
  void CutOut(std::size_t first, std::size_t end);
  /// Finds the tokens of the text, which has `size` bytes.
  void Find(std::size_t size);

  [[nodiscard]] std::size_t TokenCount() const { return count_ / 2; }
  [[nodiscard]] std::size_t Start(std::size_t token) const { return edges_[2 * token]; }
  [[nodiscard]] std::size_t End(std::size_t token) const { return edges_[2 * token + 1]; }

 private:
  std::vector<std::uint64_t> masks_;
  /// The first byte of the first token, the byte behind it, the first byte of the second ...
  std::vector<std::uint32_t> edges_;
  std::size_t count_ = 0;
};

}  // namespace quillomat
