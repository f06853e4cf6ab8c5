// A table in Markdown.
#include "export/export_writer.h"

namespace quillomat {
namespace {

/// What Markdown would take for markup is escaped.
void AppendMarkdown(std::string& out, std::string_view text) {
  constexpr std::string_view kMarkup = "\\`*_{}[]<>()#+-!|~&";
  for (const char ch : text) {
    if (ch == '\n' || ch == '\r') {
      out.push_back(' ');
      continue;
    }
    if (kMarkup.find(ch) != std::string_view::npos) out.push_back('\\');
    out.push_back(ch);
  }
}

}  // namespace

bool WriteMarkdown(const ExportTable& table, ExportWriter& writer) {
  std::string& out = writer.Out();
  for (const WordColumn column : table.columns) out.append("| ").append(NameOf(column)).append(" ");
  out.append("|\n");
  for (const WordColumn column : table.columns) out.append(IsText(column) ? "| --- " : "| ---: ");
  out.append("|\n");
  const bool whole = ForEachRow(table, [&](const ExportRow& row) {
    for (const WordColumn column : table.columns) {
      out.append("| ");
      if (IsText(column)) {
        AppendMarkdown(out, TextOf(row, column));
      } else {
        AppendNumber(out, row, column);
      }
      out.push_back(' ');
    }
    out.append("|\n");
    return writer.EndRow();
  });
  writer.Flush();
  return whole;
}

}  // namespace quillomat
