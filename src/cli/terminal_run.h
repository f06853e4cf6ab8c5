// One run of quillomat-cli: sets the controls as the command line says, clicks the command, and
// prints what came of it.
#pragma once

#include <iosfwd>

#include "cli/command_line.h"

namespace quillomat {

/// Returns the exit status. The list goes to the process's standard output, all else to the
/// streams.
[[nodiscard]] int RunInTerminal(const CommandLine& options, std::ostream& err);

}  // namespace quillomat
