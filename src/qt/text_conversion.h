// Between the program's texts (UTF-8, line breaks CR LF) and the toolkit's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quillomat {

/// For a single line, a caption or a path. Bytes that are not UTF-8 show as replacement characters.
[[nodiscard]] QString ToQt(std::string_view text);
[[nodiscard]] std::string FromQt(const QString& text);

/// For text of many lines.
[[nodiscard]] QString ToQtLines(std::string_view text);
[[nodiscard]] std::string FromQtLines(const QString& text);

}  // namespace quillomat
