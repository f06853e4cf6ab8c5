// Notes on lists of words that do not do what whoever names them would expect.
#pragma once

#include <iosfwd>

#include "app/messages.h"
#include "app/program.h"
#include "cli/command_line.h"

namespace quillomat {

/// Tells `err` of count-only words that are none or that no text holds, and of words that stand in
/// both kinds of list. The program has taken its lists from the panel.
void TellListsWithoutEffect(const CommandLine& options, Program& program, const Messages& messages,
                            std::ostream& err);

}  // namespace quillomat
