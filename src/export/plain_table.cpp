#include "export/plain_table.h"

#include <algorithm>
#include <array>
#include <utility>

#include "export/delimited_form.h"
#include "export/json_text.h"
#include "system/output_file.h"

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{256} * 1024;
constexpr std::array kPlainFormats = {ExportFormat::kCsv, ExportFormat::kTsv, ExportFormat::kJson,
                                      ExportFormat::kJsonLines};

/// Appends each row to `out`, which is written in large blocks.
template <typename AppendRow>
void WriteRows(const PlainTable& table, std::string out, ByteSink& sink, AppendRow appendRow) {
  for (std::size_t row = 0; row < table.rows; ++row) {
    appendRow(out, row);
    if (out.size() < kBlockBytes) continue;
    sink.Write(out);
    out.clear();
  }
  sink.Write(out);
}

void WriteDelimitedTable(const PlainTable& table, const DelimitedForm& form, ByteSink& sink) {
  std::string head;
  for (const std::string_view name : table.columns) {
    if (!head.empty()) head.push_back(form.separator);
    head.append(name);
  }
  head.append(form.lineEnd);
  WriteRows(table, std::move(head), sink, [&](std::string& out, std::size_t row) {
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      if (column > 0) out.push_back(form.separator);
      const PlainTable::Cell cell = table.cellAt(row, column);
      if (const auto* text = std::get_if<std::string>(&cell)) form.appendText(out, *text);
      if (const auto* number = std::get_if<std::int64_t>(&cell)) out += std::to_string(*number);
    }
    out.append(form.lineEnd);
  });
}

/// What is not known is left out.
void AppendObject(std::string& out, const PlainTable& table, std::size_t row) {
  std::string_view before = "{";
  for (std::size_t column = 0; column < table.columns.size(); ++column) {
    const PlainTable::Cell cell = table.cellAt(row, column);
    if (std::holds_alternative<std::monostate>(cell)) continue;
    out.append(std::exchange(before, ", "));
    out.append(QuotedJson(table.columns[column])).append(": ");
    const auto* number = std::get_if<std::int64_t>(&cell);
    out += number != nullptr ? std::to_string(*number) : QuotedJson(std::get<std::string>(cell));
  }
  out.append(before == "{" ? "{}" : "}");
}

}  // namespace

std::optional<ExportFormat> PlainFormatOfPath(std::string_view path) {
  const std::optional<ExportFormat> format = ExportFormatOfPath(path);
  const bool isPlain = format && std::ranges::count(kPlainFormats, *format) > 0;
  return isPlain ? format : std::nullopt;
}

std::string PlainEndings() {
  std::string endings;
  for (const ExportFormat format : kPlainFormats) {
    const auto info = std::ranges::find(kExportFormats, format, &ExportFormatInfo::format);
    endings.append(endings.empty() ? "" : ", ").append(info->ending);
  }
  return endings;
}

void ExportPlainText(const PlainTable& table, ExportFormat format, ByteSink& sink) {
  switch (format) {
    case ExportFormat::kTsv:
      return WriteDelimitedTable(table, kTsvForm, sink);
    case ExportFormat::kJson:
      WriteRows(table, "[", sink, [&](std::string& out, std::size_t row) {
        out.append(row == 0 ? "\n  " : ",\n  ");
        AppendObject(out, table, row);
      });
      return sink.Write("\n]\n");
    case ExportFormat::kJsonLines:
      return WriteRows(table, {}, sink, [&](std::string& out, std::size_t row) {
        AppendObject(out, table, row);
        out.push_back('\n');
      });
    default:
      return WriteDelimitedTable(table, kCsvForm, sink);
  }
}

void ExportPlainTable(const PlainTable& table, ExportFormat format, const std::string& path) {
  OutputFile file(path);
  ExportPlainText(table, format, file);
  file.Close();
}

}  // namespace quillomat
