// A workbook for spreadsheets. The library that makes it writes files by their names only, and not
// into a sink.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "export/export_table.h"

namespace quillomat {

/// Words on one sheet; more go on in the next. A sheet takes 1,048,576 rows, its header's included.
inline constexpr std::size_t kRowsPerSheet = 1'048'575;

/// `text` as a workbook holds it, where "_x000D_" would stand for a carriage return: text that
/// happens to look so has its first underscore written in that form.
[[nodiscard]] std::string XlsxText(std::string_view text);

/// `text` (UTF-8) as cells, of which each holds as much as a cell may, and the next what follows;
/// in the form of XlsxText. None for "".
[[nodiscard]] std::vector<std::string> XlsxCells(std::string_view text);

/// Why no workbook can be written on this system, and the way out; nothing if one can.
[[nodiscard]] std::optional<std::string> FindWorkbookFault();

/// Writes the workbook into `path`, a file of the caller's that is new or may be overwritten.
/// Sheets are collected in files of the folder `scratchFolder`. False when `progress` ended it;
/// then there is no file. Throws RunTimeError 61, 75, 57 or 7, or 53 where FindWorkbookFault
/// finds one. `rowsPerSheet` is less in tests
/// only.
bool WriteXlsx(const ExportTable& table, const std::string& path, const std::string& scratchFolder,
               const ExportProgress& progress, std::size_t rowsPerSheet = kRowsPerSheet);

}  // namespace quillomat
