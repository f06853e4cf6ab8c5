// Whether a text at hand, of the clipboard, is one of words. Files are tested by line_endings.h.
#pragma once

#include <cstddef>
#include <string_view>

namespace quillomat {

/// So many characters at the start of a clipboard text are looked at.
inline constexpr std::size_t kClipboardTestLength = 3000;

/// Whether none of the first `maximum` characters is a control character other than tab, line feed
/// and carriage return.
[[nodiscard]] bool IsText(std::string_view text, std::size_t maximum);

}  // namespace quillomat
