// Exports a result: the whole list, in a form that other programs open without a question.
//
// The formats:
//   CSV       RFC 4180: commas, a line of column names, CR LF, quotes where needed; UTF-8.
//   TSV       tabs and line feeds; a tab, line break or backslash in a path is \t, \n, \r or \\.
//   JSON      one object: "settings", "totals", "statistics" and "rows", an array of objects whose
//             keys are the names of the columns.
//   JSON lines  an object a line, as the rows of JSON.
//   XLSX      a sheet of words, with the next ones for what one sheet does not hold; a sheet of
//             totals, statistics and settings. A word is text there, never a formula.
//   HTML      one page with a table that sorts itself, and without any outside link.
//   Markdown  a table.
#pragma once

#include <string>

#include "base/byte_sink.h"
#include "export/export_format.h"
#include "export/export_table.h"

namespace quillomat {

/// Writes the table into `path`, which is whole or as it was: also when the disk is full or the
/// program killed. False when `progress` ended it. Throws RunTimeError as OutputFile does.
bool ExportToFile(const ExportTable& table, ExportFormat format, const std::string& path,
                  const ExportProgress& progress);

/// Writes the table into a sink, which decides what becomes of a part. False when `progress` ended
/// it. Throws RunTimeError as the sink does, and where no workbook can be made for want of room.
bool ExportTo(ByteSink& sink, const ExportTable& table, ExportFormat format,
              const ExportProgress& progress);

/// The same in a format that is text: any but XLSX.
bool ExportText(const ExportTable& table, ExportFormat format, ByteSink& sink,
                const ExportProgress& progress);

}  // namespace quillomat
