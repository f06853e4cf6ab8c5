// CSV and TSV.
#include "export/delimited_form.h"
#include "export/export_writer.h"

namespace quillomat {
namespace {

bool WriteDelimited(const ExportTable& table, const DelimitedForm& form, ExportWriter& writer) {
  std::string& out = writer.Out();
  bool firstName = true;
  for (const WordColumn column : table.columns) {
    if (!firstName) out.push_back(form.separator);
    firstName = false;
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
  return WriteDelimited(table, kCsvForm, writer);
}

bool WriteTsv(const ExportTable& table, ExportWriter& writer) {
  return WriteDelimited(table, kTsvForm, writer);
}

}  // namespace quillomat
