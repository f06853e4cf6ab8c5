// CSV and TSV.
#include "export/export_writer.h"

namespace quillomat {
namespace {

void AppendCsvText(std::string& out, std::string_view text) {
  if (text.find_first_of("\",\r\n") == std::string_view::npos) {
    out.append(text);
    return;
  }
  out.push_back('"');
  for (const char ch : text) {
    if (ch == '"') out.push_back('"');
    out.push_back(ch);
  }
  out.push_back('"');
}

/// TSV has no quotes: what would end a cell is written as a backslash and a letter.
void AppendTsvText(std::string& out, std::string_view text) {
  for (const char ch : text) {
    switch (ch) {
      case '\t':
        out.append("\\t");
        break;
      case '\n':
        out.append("\\n");
        break;
      case '\r':
        out.append("\\r");
        break;
      case '\\':
        out.append("\\\\");
        break;
      default:
        out.push_back(ch);
    }
  }
}

struct Delimited {
  char separator;
  std::string_view lineEnd;
  void (*appendText)(std::string&, std::string_view);
};

bool WriteDelimited(const ExportTable& table, const Delimited& form, ExportWriter& writer) {
  std::string& out = writer.Out();
  for (const WordColumn column : table.columns) {
    if (column != table.columns.front()) out.push_back(form.separator);
    out.append(NameOf(column));
  }
  out.append(form.lineEnd);
  const bool whole = ForEachRow(table, [&](const ExportRow& row) {
    bool first = true;
    for (const WordColumn column : table.columns) {
      if (!first) out.push_back(form.separator);
      first = false;
      if (IsText(column)) {
        form.appendText(out, TextOf(row, column));
      } else {
        AppendNumber(out, row, column);
      }
    }
    out.append(form.lineEnd);
    return writer.EndRow();
  });
  writer.Flush();
  return whole;
}

}  // namespace

bool WriteCsv(const ExportTable& table, ExportWriter& writer) {
  return WriteDelimited(table, {',', "\r\n", AppendCsvText}, writer);
}

bool WriteTsv(const ExportTable& table, ExportWriter& writer) {
  return WriteDelimited(table, {'\t', "\n", AppendTsvText}, writer);
}

}  // namespace quillomat
