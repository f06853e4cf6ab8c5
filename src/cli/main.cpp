// quillomat-cli: counts words from a terminal or a script.
#include <exception>
#include <iostream>
#include <memory>
#include <memory_resource>
#include <new>
#include <optional>
#include <ostream>
#include <span>
#include <sstream>
#include <string>
#include <utility>

#include "base/terminal_text.h"
#include "base/text_helpers.h"
#include "cli/command_line.h"
#include "cli/exit_status.h"
#include "cli/standard_input.h"
#include "cli/standard_output.h"
#include "cli/terminal_run.h"
#include "cli/terminal_streams.h"
#include "cli/written_files.h"
#include "engine/kernel_choice.h"
#include "system/file_system.h"
#include "system/interruption.h"
#include "system/large_pages.h"
#include "system/terminal.h"

namespace quillomat {
namespace {

/// False when there was something to print and it could not be.
bool PrintHelp(const std::string& help, std::ostream& err) {
  const std::string text = ReplaceAll(help, "\n", kPlatformLineBreak);
  return text.empty() || PrintToStandardOutput([&](ByteSink& out) { out.Write(text); }, err);
}

TerminalStreams StandardStreams(std::ostream& err, bool errIsTerminal) {
  return {.openInput = [](ScanYield& yield) { return std::make_unique<StandardInput>(yield); },
          .print = [&err](const auto& write) { return PrintToStandardOutput(write, err); },
          .err = err,
          .errIsTerminal = errIsTerminal,
          .outIsTerminal = IsTerminal(StandardStream::kOutput),
          .interruption = InterruptionStatus,
          .endAtInterruption = EndAtFirstInterruption};
}

}  // namespace
}  // namespace quillomat

int main(int argc, char** argv) {
  using namespace quillomat;
  try {
    LetDrivesBeEmpty();
    std::pmr::set_default_resource(&LargePageMemory());
    std::optional<Interruption> interruption(std::in_place);
    const Terminal terminal;
    const bool errIsTerminal = IsTerminal(StandardStream::kError);
    TellOfWrittenFiles([errIsTerminal](std::span<const std::string> paths) {
      const std::string line = LineOfWrittenFiles(paths);
      return errIsTerminal ? EscapedForTerminal(line) : line;
    });
    EscapingBuffer escaping(*std::cerr.rdbuf(), ShowsColours(StandardStream::kError));
    std::ostream err(errIsTerminal ? &escaping : std::cerr.rdbuf());
    std::ostringstream help;
    const ParsedCommandLine parsed = ParseCommandLine(ProgramArguments(argc, argv), help, err);
    if (parsed.exitStatus) return PrintHelp(help.str(), err) ? *parsed.exitStatus : kRunFailed;
    if (const std::string fault = KernelFault(); !fault.empty()) {
      err << kOwnError << fault << '\n';
      return kWrongCommandLine;
    }
    if (parsed.options.listOnInterrupt) {
      interruption.reset();
      interruption.emplace(Interruption::First::kIsNoted);
    }
    return RunInTerminal(parsed.options, StandardStreams(err, errIsTerminal));
  } catch (const std::bad_alloc&) {
    std::cerr << "quillomat-cli: Out of memory\n";
    return kRunFailed;
  } catch (const std::exception& error) {
    std::cerr << "quillomat-cli: unexpected failure: " << error.what() << '\n';
    return kRunFailed;
  }
}
