// Between the program's texts (UTF-8, line breaks CR LF) and the toolkit's.
//
// A path may hold bytes that are no UTF-8. Each of them is one unit in the toolkit's text, a half
// of a pair that no text has (U+DC80 to U+DCFF), which widgets show as a replacement character; so
// what is edited or handed back keeps them.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quillomat {

/// For a single line, a caption or a path. FromQt makes the same bytes of it again.
[[nodiscard]] QString ToQt(std::string_view text);
[[nodiscard]] std::string FromQt(const QString& text);

/// For text of many lines.
[[nodiscard]] QString ToQtLines(std::string_view text);
[[nodiscard]] std::string FromQtLines(const QString& text);

/// For text that is only looked at, and may name a path: what could not be seen, or would turn the
/// direction of writing, is shown as on a terminal ("\xE9", "\u202E").
[[nodiscard]] QString ToShown(std::string_view text);
[[nodiscard]] QString ToShownLines(std::string_view text);

/// For text on its way to other programs: bytes that are no UTF-8 as "\xE9", all else as it is.
[[nodiscard]] QString WithReadableBytes(const QString& text);

}  // namespace quillomat
