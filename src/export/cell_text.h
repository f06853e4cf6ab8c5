// Cells of an export as text, the same in every format that is text: plain decimal numbers with a
// dot, whatever the locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "export/export_table.h"

namespace quillomat {

/// One row of an export: a word, and where rows are made per file, one of its files.
struct ExportRow {
  WordRow word;
  /// Well-formed UTF-8, as all formats need it; "" where rows are not made per file.
  std::string_view file;
};

[[nodiscard]] constexpr bool IsText(WordColumn column) {
  return column == WordColumn::kWord || column == WordColumn::kFile;
}
/// The word or the path of a column that is text.
[[nodiscard]] std::string_view TextOf(const ExportRow& row, WordColumn column);

/// The number of a column that is none; nothing is appended when it is not known.
void AppendNumber(std::string& out, const ExportRow& row, WordColumn column);
/// The same as a number, for formats that have numbers of their own.
[[nodiscard]] double NumberOf(const ExportRow& row, WordColumn column);
[[nodiscard]] bool HasNumber(const ExportRow& row, WordColumn column);
/// How many decimals a column's numbers have.
[[nodiscard]] int DecimalsOf(WordColumn column);

/// `text` with what HTML reads as markup escaped.
void AppendHtml(std::string& out, std::string_view text);

/// A fact's value as text, well-formed UTF-8; several texts are lines.
[[nodiscard]] std::string TextOf(const ExportFact& fact);

/// Calls `take` with every row in order; it returns false to end. Returns whether all were taken.
bool ForEachRow(const ExportTable& table, const std::function<bool(const ExportRow&)>& take);

}  // namespace quillomat
