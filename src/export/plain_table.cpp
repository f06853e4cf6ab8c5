#include "export/plain_table.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/well_formed_text.h"
#include "export/delimited_form.h"
#include "export/export_writer.h"
#include "export/json_text.h"
#include "system/output_file.h"

namespace quillomat {
namespace {

constexpr std::array kPlainFormats = {ExportFormat::kCsv, ExportFormat::kTsv, ExportFormat::kJson,
                                      ExportFormat::kJsonLines};

/// `before`, what is appended for each row, and `after`.
template <typename AppendRow>
void WriteRows(const PlainTable& table, std::string_view before, std::string_view after,
               ByteSink& sink, AppendRow appendRow) {
  const ExportProgress nobody;
  ExportWriter writer(sink, nobody);
  writer.Out().append(before);
  for (std::size_t row = 0; row < table.rows; ++row) {
    appendRow(writer.Out(), row);
    if (!writer.EndRow()) return;
  }
  writer.Out().append(after);
  writer.Flush();
}

void WriteDelimitedTable(const PlainTable& table, const DelimitedForm& form, ByteSink& sink) {
  std::string head;
  for (const std::string_view name : table.columns) {
    if (!head.empty()) head.push_back(form.separator);
    head.append(name);
  }
  head.append(form.lineEnd);
  WriteRows(table, head, {}, sink, [&](std::string& out, std::size_t row) {
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      if (column > 0) out.push_back(form.separator);
      const PlainTable::Cell cell = table.cellAt(row, column);
      if (const auto* text = std::get_if<std::string>(&cell))
        form.appendText(out, WellFormedText(*text));
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
      return WriteRows(table, "[", "\n]\n", sink, [&](std::string& out, std::size_t row) {
        out.append(row == 0 ? "\n  " : ",\n  ");
        AppendObject(out, table, row);
      });
    case ExportFormat::kJsonLines:
      return WriteRows(table, {}, {}, sink, [&](std::string& out, std::size_t row) {
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
