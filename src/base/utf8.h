// Characters in UTF-8 strings. All text inside the program is UTF-8, and a character is one code
// point: lengths, limits and paddings count code points, never bytes.
//
// The functions never read outside the text they are given. In text that is not well-formed (only
// paths can be, see line_decoder.h for everything else) a byte that fits nowhere counts as a
// character of its own, with the byte's value.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillomat {

struct Utf8Character {
  char32_t codePoint = 0;
  std::size_t bytes = 0;
};

/// The character at byte `position`, which must be inside `text` and the start of a character.
[[nodiscard]] Utf8Character CharacterAt(std::string_view text, std::size_t position);

/// The number of characters in `text`.
[[nodiscard]] std::size_t CharacterCount(std::string_view text);

/// The byte length of the first `characters` characters, or of the whole text if it has fewer.
[[nodiscard]] std::size_t BytesOfFirst(std::string_view text, std::size_t characters);

/// The byte position at which the last character of `text` starts; 0 for an empty text.
[[nodiscard]] std::size_t LastCharacterStart(std::string_view text);

/// `codePoint` must be a Unicode scalar value.
void AppendCharacter(std::string& text, char32_t codePoint);

/// Whether the bytes are well-formed UTF-8: shortest forms only, no surrogates, at most U+10FFFF.
[[nodiscard]] bool IsWellFormedUtf8(std::string_view bytes);

/// How many bytes at the start of `bytes` are well-formed UTF-8.
[[nodiscard]] std::size_t WellFormedUtf8Bytes(std::string_view bytes);

/// Whether no byte is above 127.
[[nodiscard]] bool IsAscii(std::string_view bytes);

}  // namespace quillomat
