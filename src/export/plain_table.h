// A table of any rows as a file for other programs, where there are no words to be exported: the
// report of a count by file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/byte_sink.h"
#include "export/export_format.h"

namespace quillomat {

struct PlainTable {
  /// Nothing, a number or a text.
  using Cell = std::variant<std::monostate, std::int64_t, std::string>;

  std::vector<std::string_view> columns;
  std::size_t rows = 0;
  /// Texts are written as WellFormedText has them.
  std::function<Cell(std::size_t row, std::size_t column)> cellAt;
};

/// Of a file by the ending of its name: CSV, TSV, JSON (an array of objects) or JSON lines; nothing
/// for another ending.
[[nodiscard]] std::optional<ExportFormat> PlainFormatOfPath(std::string_view path);
/// "csv, tsv, json, jsonl", for messages.
[[nodiscard]] std::string PlainEndings();

/// Writes the table into `path`, which is whole or as it was. `format` is one of the above. Throws
/// RunTimeError as OutputFile does.
void ExportPlainTable(const PlainTable& table, ExportFormat format, const std::string& path);
void ExportPlainText(const PlainTable& table, ExportFormat format, ByteSink& sink);

}  // namespace quillomat
