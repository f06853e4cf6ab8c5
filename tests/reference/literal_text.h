// Strings of the literal engine: one element is one character, and positions count from 1. The
// functions here are the string functions that the algorithms are written in, and the way in and
// out of UTF-8, which the engine's callers use. UTF-8 that comes in must be well-formed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillomat::reference {

using Characters = std::u32string;

[[nodiscard]] Characters FromUtf8(std::string_view text);
[[nodiscard]] std::string ToUtf8(const Characters& text);

/// A-Z; U+00C0-U+00DE except the multiplication sign; S and Z with caron, OE and Y with diaeresis.
[[nodiscard]] char32_t LowerCase(char32_t character);
[[nodiscard]] Characters LowerCase(const Characters& text);

/// The other way: the characters that LowerCase produces become the ones that it took.
[[nodiscard]] Characters UpperCase(const Characters& text);

/// Without the blanks (U+0020 and nothing else) at both ends, or at the right end.
[[nodiscard]] Characters Trim(const Characters& text);
[[nodiscard]] Characters RTrim(const Characters& text);

/// The character at `position` as a string; empty past the end.
[[nodiscard]] Characters CharacterAt(const Characters& text, std::size_t position);

/// At most `length` characters from `start`; empty past the end.
[[nodiscard]] Characters Mid(const Characters& text, std::size_t start, std::size_t length);

/// All characters from `start`; empty past the end.
[[nodiscard]] Characters Mid(const Characters& text, std::size_t start);

/// The last `length` characters, or the whole text when it is shorter.
[[nodiscard]] Characters Right(const Characters& text, std::size_t length);

/// The first position at or after `start` at which `wanted` stands; 0 when there is none.
[[nodiscard]] std::size_t InStr(std::size_t start, const Characters& text,
                                const Characters& wanted);

/// Every `wanted` replaced, from left to right and without overlap.
[[nodiscard]] Characters Replace(const Characters& text, const Characters& wanted,
                                 const Characters& replacement);

/// Padded with blanks on the left, or on the right, up to `width`; a longer text stays as it is.
[[nodiscard]] Characters RightJustified(const Characters& text, std::size_t width);
[[nodiscard]] Characters LeftJustified(const Characters& text, std::size_t width);

[[nodiscard]] Characters Decimal(std::int32_t number);

/// With "," between groups of three digits. `number` is not negative.
[[nodiscard]] Characters Grouped(std::int32_t number);

/// A file's number, and how often a word occurs in it, are written with so many digits.
inline constexpr std::size_t kFileDigits = 5;

/// With leading zeros. `number` is 0 to 99,999.
[[nodiscard]] Characters FiveDigits(std::int32_t number);

/// The value of a text of decimal digits.
[[nodiscard]] std::int32_t NumericValue(const Characters& digits);

}  // namespace quillomat::reference
