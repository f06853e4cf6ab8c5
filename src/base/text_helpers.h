// Small helpers for text that every layer uses: blanks, padding, digit grouping.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quillomat {

/// The line break inside window texts and messages.
inline constexpr std::string_view kCrLf = "\r\n";

/// The line break that the platform's own programs write into text files.
#ifdef _WIN32
inline constexpr std::string_view kPlatformLineBreak = "\r\n";
#else
inline constexpr std::string_view kPlatformLineBreak = "\n";
#endif

/// `text` without the blanks (U+0020, nothing else) at its ends.
[[nodiscard]] std::string_view TrimBlanks(std::string_view text);
[[nodiscard]] std::string_view TrimRightBlanks(std::string_view text);

/// How often the byte `ch` occurs in `text`.
[[nodiscard]] std::size_t CountOf(char ch, std::string_view text);

/// `text` with blanks put before it until it has `width` characters.
[[nodiscard]] std::string PadLeft(std::string_view text, std::size_t width);

/// `text` with every `from` replaced by `to`, left to right, without overlap. `from` is not empty.
[[nodiscard]] std::string ReplaceAll(std::string_view text, std::string_view from,
                                     std::string_view to);

/// The items with single blanks between them.
[[nodiscard]] std::string JoinWithBlanks(std::span<const std::string> items);

/// `text` on one line: every run of line breaks becomes one blank, and blanks at the end go.
[[nodiscard]] std::string OnOneLine(std::string_view text);

/// `number` (not negative) in decimal with `separator` between groups of three digits.
[[nodiscard]] std::string GroupDigits(std::int64_t number, std::string_view separator);

}  // namespace quillomat
