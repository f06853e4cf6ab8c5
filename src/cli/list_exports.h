// --export: the list of a count in a form for other programs, beside the list itself or on standard
// output in its place. Each gets all listed words, or the first ones with --top, in the order of
// the list; the totals and the settings go with them where the form has room for that.
#pragma once

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

/// Exports the words that the program has counted. What went wrong, naming the file; "" where the
/// user has been told; nothing if all was written.
[[nodiscard]] std::optional<std::string> ExportList(const Program& program,
                                                    const CommandLine& options,
                                                    const TerminalStreams& streams);

}  // namespace quillomat
