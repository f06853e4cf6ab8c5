// --export: the list of a count in a form for other programs, beside the list itself. Each file
// gets all listed words, or the first ones with --top, in the order of the list; the totals and the
// settings go with them where the form has room for that.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/program.h"
#include "cli/command_line.h"

namespace quillomat {

/// Exports the words that the program has counted. What went wrong, naming the file; nothing if
/// every file was written.
[[nodiscard]] std::optional<std::string> ExportResult(const Program& program,
                                                      const CommandLine& options);

/// Has `write` write a file beside the list, unless it is read by the count, or holds something
/// that the user wants to be warned of. What went wrong, naming the file; nothing if it was
/// written.
[[nodiscard]] std::optional<std::string> WriteBesideList(const std::string& path,
                                                         const Program& program,
                                                         const std::function<void()>& write);

}  // namespace quillomat
