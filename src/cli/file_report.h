// --report: what became of each file of a count, as a table for other programs.
#pragma once

#include <optional>
#include <string>

#include "app/program.h"
#include "cli/command_line.h"

namespace quillomat {

/// What is wrong with --report, told before anything is read; nothing if it will do.
[[nodiscard]] std::optional<std::string> FindReportFault(const CommandLine& options);

/// Writes the report of the last count, also of one that gave no words. What went wrong, naming the
/// file; nothing if it was written, or none was asked for.
[[nodiscard]] std::optional<std::string> WriteFileReport(const Program& program,
                                                         const CommandLine& options);

}  // namespace quillomat
