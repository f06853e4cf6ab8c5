// Feeds arguments, one a line, to the command line's parser. It checks:
// 1. It comes to an end without an exception, with options or an exit status.
// 2. A refusal is one line on standard error, and nothing else is written.
// 3. Options that are taken name one source of text.
#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/command_line.h"
#include "cli/exit_status.h"
#include "fuzzing.h"

namespace {

using quillomat::CommandLine;
using quillomat::fuzzing::Require;

std::vector<std::string> ArgumentsOf(std::string_view lines) {
  constexpr std::size_t kMost = 40;
  std::vector<std::string> arguments = {"quillomat-cli"};
  while (!lines.empty() && arguments.size() < kMost) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    // The system ends an argument there.
    arguments.emplace_back(lines.substr(0, std::min(end, lines.substr(0, end).find('\0'))));
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
  return arguments;
}

int SourcesOf(const CommandLine& options) {
  return (options.paths.empty() ? 0 : 1) + (options.file ? 1 : 0) + (options.folder ? 1 : 0) +
         (options.text ? 1 : 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view lines(reinterpret_cast<const char*>(data), size);
  std::ostringstream out;
  std::ostringstream err;
  const auto parsed = quillomat::ParseCommandLine(ArgumentsOf(lines), out, err);
  const std::string errors = err.str();
  if (!parsed.exitStatus) {
    Require(SourcesOf(parsed.options) == 1, "one source is named");
    Require(errors.empty() && out.str().empty(), "options are taken without a word");
  } else if (*parsed.exitStatus == quillomat::kListMade) {
    Require(errors.empty() && !out.str().empty(), "help goes to standard output");
  } else {
    Require(*parsed.exitStatus == quillomat::kWrongCommandLine, "the status is that of a refusal");
    Require(out.str().empty(), "a refusal prints nothing");
    Require(!errors.empty() && errors.find('\n') == errors.size() - 1, "a refusal is one line");
  }
  return 0;
}
