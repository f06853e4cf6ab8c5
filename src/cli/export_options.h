// What --export, --export-format and --columns ask for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "export/export_format.h"
#include "listing/word_table.h"

namespace quillomat {

/// What is wrong with them, told before anything is read; nothing if they will do.
[[nodiscard]] std::optional<std::string> FindExportFault(const CommandLine& options);

/// The format of one of the exports: that of the ending of its name; else that of --export-format;
/// else CSV on standard output. The options have no fault.
[[nodiscard]] ExportFormat FormatOfExport(const CommandLine& options, const std::string& path);

/// The columns that --columns names, or the usual ones. The options have no fault.
[[nodiscard]] std::vector<WordColumn> ExportColumns(const CommandLine& options, bool knowsFiles);

}  // namespace quillomat
