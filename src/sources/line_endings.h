// What kind of text a file holds, judged by its first bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillomat {

enum class LineEndingType {
  kCannotBeOpened = -3,
  kZeroLength = -2,
  kNotFound = -1,
  kNotText = 0,
  /// Carriage return and line feed, or no line break at all.
  kDos = 1,
  kUnix = 2,
  kMacintosh = 3,
};

/// So many bytes at the start of a file are enough to look at `maximum` bytes of its text: those of
/// a mark, and of UTF-16 two for a character that may be one.
[[nodiscard]] constexpr std::size_t HeadBytes(std::size_t maximum) {
  return 3 + 2 * maximum;
}

/// The type of the text that starts with `head`, HeadBytes(maximum) or all there are.
[[nodiscard]] LineEndingType LineEndingTypeOf(std::string_view head, std::size_t maximum);

/// Looks at the first `maximum` bytes of the file's text (after decoding where it is UTF-16). A
/// control character other than tab, line feed and carriage return makes it no text. Throws
/// RunTimeError when a file that could be opened cannot be read.
[[nodiscard]] LineEndingType GetLineEndingType(const std::string& path, std::size_t maximum);

}  // namespace quillomat
