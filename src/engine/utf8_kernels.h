// Passes over text in UTF-8 that look at many bytes at a time, with the vector kernel in use
// (kernel_choice.h). They answer what holds for nearly all of a text; what they leave open is for
// the caller to look at, character by character.
//
// Masks: bit i of the mask of block k stands for byte 64 k + i of the text. Bits behind the end of
// the text are 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillomat {

inline constexpr std::size_t kUtf8Block = 64;

/// The blocks of a text, of which the last is not full and may be empty.
[[nodiscard]] constexpr std::size_t Utf8Blocks(std::string_view text) {
  return text.size() / kUtf8Block + 1;
}

/// Whether the bytes are well-formed UTF-8; as IsWellFormedUtf8, but faster where they are many.
[[nodiscard]] bool IsWellFormedText(std::string_view bytes);

/// Marks the second byte of every character that may not be in normal form, or has to be looked at
/// together with its neighbours (normal_text.h), in the blocks from `firstBlock` on, which are as
/// many as masks.
void MarkSuspects(std::string_view text, std::size_t firstBlock, std::span<std::uint64_t> masks);

/// Counts letters of the most frequent alphabets that the western rule leaves out in those blocks
/// of a well-formed text, and marks the second byte of every other character beyond U+00FF that may
/// be a letter or a mark, and of U+0178.
[[nodiscard]] std::size_t CountCommonForeign(std::string_view text, std::size_t firstBlock,
                                             std::span<std::uint64_t> others);

}  // namespace quillomat
