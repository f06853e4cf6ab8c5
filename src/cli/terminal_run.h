// One run of quillomat-cli: sets the controls as the command line says, counts, and prints what
// came of it.
#pragma once

#include "cli/command_line.h"
#include "cli/terminal_streams.h"

namespace quillomat {

/// Returns the exit status.
[[nodiscard]] int RunInTerminal(const CommandLine& options, const TerminalStreams& streams);

}  // namespace quillomat
