// Finds the tokens of a text: the longest runs of bytes that may belong to a word. Every word lies
// inside one token, and what becomes of a token does not depend on what stands around it.
//
// Many bytes are classified at a time, with the vector instructions of the machine that the program
// runs on. The portable function does the same byte by byte.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

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

/// Sets bit i of masks[k] when byte 64 k + i of `text` belongs to a token. `masks` has one element
/// for every 64 bytes that have begun; bits behind the end of the text are 0.
void FindTokenBytes(const TokenClasses& classes, std::string_view text,
                    std::span<std::uint64_t> masks);

/// The same without vector instructions.
void FindTokenBytesPortably(const TokenClasses& classes, std::string_view text,
                            std::span<std::uint64_t> masks);

/// Goes through the tokens of a text, from its masks.
class TokenRuns {
 public:
  /// A token's bytes are start to end - 1.
  struct Run {
    std::size_t start;
    std::size_t end;
  };

  explicit TokenRuns(std::span<const std::uint64_t> masks)
      : masks_(masks), mask_(masks.empty() ? 0 : masks[0]) {}

  [[nodiscard]] std::optional<Run> Next() {
    while (mask_ == 0) {
      if (place_ + 1 >= masks_.size()) return std::nullopt;
      mask_ = masks_[++place_];
    }
    const auto from = static_cast<std::size_t>(std::countr_zero(mask_));
    const std::size_t start = place_ * kBytesPerMask + from;
    const std::size_t to = from + static_cast<std::size_t>(std::countr_one(mask_ >> from));
    if (to < kBytesPerMask) {
      mask_ &= kAll << to;
      return Run{start, place_ * kBytesPerMask + to};
    }
    return Run{start, EndInNextMasks()};
  }

 private:
  static constexpr std::uint64_t kAll = ~std::uint64_t{0};

  std::size_t EndInNextMasks() {
    do {
      mask_ = 0;
      if (place_ + 1 >= masks_.size()) return masks_.size() * kBytesPerMask;
      mask_ = masks_[++place_];
    } while (mask_ == kAll);
    const int rest = std::countr_one(mask_);
    mask_ &= kAll << rest;
    return place_ * kBytesPerMask + static_cast<std::size_t>(rest);
  }

  std::span<const std::uint64_t> masks_;
  std::size_t place_ = 0;
  std::uint64_t mask_;
};

}  // namespace quillomat
