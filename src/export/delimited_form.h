// CSV and TSV: what stands between cells and behind rows, and how a text is written as a cell.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// By RFC 4180: in quotes where it has to be.
void AppendCsvText(std::string& out, std::string_view text);
/// There are no quotes: what would end a cell is written as a backslash and a letter.
void AppendTsvText(std::string& out, std::string_view text);

struct DelimitedForm {
  char separator;
  std::string_view lineEnd;
  void (*appendText)(std::string&, std::string_view);
};

inline constexpr DelimitedForm kCsvForm{',', "\r\n", AppendCsvText};
inline constexpr DelimitedForm kTsvForm{'\t', "\n", AppendTsvText};

}  // namespace quillomat
