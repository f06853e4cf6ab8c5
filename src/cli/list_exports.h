// --export: the list of a count in a form for other programs, beside the list itself or on standard
// output in its place. Each gets all listed words, or the first ones with --top, in the order of
// the list; the totals and the settings go with them where the form has room for that.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/program.h"
#include "cli/command_line.h"
#include "cli/terminal_streams.h"

namespace quillomat {

/// What of the exports the count cannot serve, told before it begins; nothing if it can.
/// `filesAreKnown`: it will tell in which files a word occurs.
[[nodiscard]] std::optional<std::string> FindUnservedExport(const CommandLine& options,
                                                            const TerminalStreams& streams,
                                                            bool filesAreKnown);

/// Exports the words that the program has counted. One that fails leaves the others alone: `tell`
/// is told what went wrong, naming the file, where the user does not know yet. True if all were
/// written.
[[nodiscard]] bool ExportList(const Program& program, const CommandLine& options,
                              const TerminalStreams& streams,
                              const std::function<void(const std::string& fault)>& tell);

}  // namespace quillomat
