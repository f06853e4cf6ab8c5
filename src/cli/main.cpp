// quillomat-cli: counts words from a terminal or a script.
#include <exception>
#include <iostream>
#include <ostream>
#include <sstream>
#include <string>

#include "base/text_helpers.h"
#include "cli/command_line.h"
#include "cli/exit_status.h"
#include "cli/standard_output.h"
#include "cli/terminal_run.h"
#include "engine/kernel_choice.h"
#include "system/file_system.h"
#include "system/interruption.h"
#include "system/terminal.h"

namespace quillomat {
namespace {

/// False when there was something to print and it could not be.
bool PrintHelp(const std::string& help, std::ostream& err) {
  const std::string text = ReplaceAll(help, "\n", kPlatformLineBreak);
  return text.empty() || PrintToStandardOutput([&](ByteSink& out) { out.Write(text); }, err);
}

}  // namespace
}  // namespace quillomat

int main(int argc, char** argv) {
  using namespace quillomat;
  try {
    LetDrivesBeEmpty();
    const Interruption interruption;
    const Terminal terminal;
    EscapingBuffer escaping(*std::cerr.rdbuf());
    std::ostream err(IsTerminal(StandardStream::kError) ? &escaping : std::cerr.rdbuf());
    std::ostringstream help;
    const ParsedCommandLine parsed = ParseCommandLine(ProgramArguments(argc, argv), help, err);
    if (parsed.exitStatus) return PrintHelp(help.str(), err) ? *parsed.exitStatus : kRunFailed;
    if (const std::string fault = KernelFault(); !fault.empty()) {
      err << "quillomat-cli: " << fault << '\n';
      return kWrongCommandLine;
    }
    return RunInTerminal(parsed.options, err);
  } catch (const std::exception& error) {
    std::cerr << "quillomat-cli: unexpected failure: " << error.what() << '\n';
    return kRunFailed;
  }
}
