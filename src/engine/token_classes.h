// Finds the tokens of a text: the longest runs of bytes that may belong to a word. Every word lies
// inside one token, and what becomes of a token does not depend on what stands around it.
//
// Many bytes are classified at a time, with the vector instructions of the machine that the program
// runs on. The portable function does the same byte by byte.
#pragma once

#include <array>
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
/// How many edges are written at once: some more than there are, so that how often the loop runs is
/// easy to foresee.
inline constexpr std::size_t kEdgesAtOnce = 8;

/// Sets bit i of masks[k] when byte 64 k + i of `text` belongs to a token. `masks` has one element
/// for every 64 bytes that have begun; bits behind the end of the text are 0.
void FindTokenBytes(const TokenClasses& classes, std::string_view text,
                    std::span<std::uint64_t> masks);

/// The same without vector instructions.
void FindTokenBytesPortably(const TokenClasses& classes, std::string_view text,
                            std::span<std::uint64_t> masks);

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
