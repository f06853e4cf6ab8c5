// quillomat-cli: counts words from a terminal or a script.
#include <exception>
#include <iostream>

#include "cli/command_line.h"
#include "cli/exit_status.h"
#include "cli/terminal_run.h"
#include "engine/kernel_choice.h"
#include "system/file_system.h"
#include "system/interruption.h"
#include "system/terminal.h"

int main(int argc, char** argv) {
  using namespace quillomat;
  try {
    LetDrivesBeEmpty();
    const Interruption interruption;
    const Terminal terminal;
    const ParsedCommandLine parsed =
        ParseCommandLine(ProgramArguments(argc, argv), std::cout, std::cerr);
    if (parsed.exitStatus) return *parsed.exitStatus;
    if (const std::string fault = KernelFault(); !fault.empty()) {
      std::cerr << "quillomat-cli: " << fault << '\n';
      return kWrongCommandLine;
    }
    return RunInTerminal(parsed.options, std::cerr);
  } catch (const std::exception& error) {
    std::cerr << "quillomat-cli: unexpected failure: " << error.what() << '\n';
    return kRunFailed;
  }
}
