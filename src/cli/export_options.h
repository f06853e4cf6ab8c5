// What --export and --columns ask for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "listing/word_table.h"

namespace quillomat {

/// What is wrong with them, told before anything is read; nothing if they will do.
[[nodiscard]] std::optional<std::string> FindExportFault(const CommandLine& options);

/// The columns that --columns names, or the usual ones. The options have no fault.
[[nodiscard]] std::vector<WordColumn> ExportColumns(const CommandLine& options, bool knowsFiles);

}  // namespace quillomat
