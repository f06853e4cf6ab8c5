// The command line of quillomat-cli.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/setting_options.h"

namespace quillomat {

struct CommandLine {
  // The source: exactly one of them is given.
  /// Files, folders, and "-" for standard input.
  std::vector<std::string> paths;
  /// A path, or "-" for standard input.
  std::optional<std::string> file;
  std::optional<std::string> folder;
  /// A path, or "-" for standard input.
  std::optional<std::string> text;
  /// The text itself, or "-" for that of standard input: it is explained, not counted.
  std::optional<std::string> explain;

  bool listFiles = false;
  bool windowText = false;
  bool summary = false;
  bool statistics = false;
  /// So many words of the list, from its start.
  std::optional<std::int32_t> top;
  /// Files to export to, and "-" for standard output.
  std::vector<std::string> exports;
  /// The format of the exports whose name does not tell it.
  std::optional<std::string> exportFormat;
  /// Where to write what became of each file.
  std::optional<std::string> report;
  /// Columns of the exports, with blanks or commas between them.
  std::optional<std::string> columns;
  /// Show the progress from the start, on a terminal or not.
  bool progress = false;
  /// List what was counted until the user interrupts the count.
  bool listOnInterrupt = false;
  /// NUL bytes in place of the list's line ends.
  bool null = false;
  /// A state file to start from, and one to write the settings into.
  std::optional<std::string> state;
  std::optional<std::string> saveState;
  bool userSettings = false;
  /// How many threads may scan at the same time; as many as the machine has cores if not given.
  std::optional<unsigned> threads;
  /// Options that stand for settings, in the order of the table of settings.
  std::vector<GivenOption> settings;
  /// What --set was given.
  ControlValues set;
  /// Titles of message boxes and the answers to them.
  std::vector<std::pair<std::string, std::string>> answers;
};

/// What becomes of the program after its arguments were read.
struct ParsedCommandLine {
  /// Set when the program is to end at once with this status: after help, or for an error.
  std::optional<int> exitStatus;
  CommandLine options;
};

/// Reads the arguments, the first of which is the program's name. Help and version go to `out`; an
/// error is one line on `err`.
[[nodiscard]] ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments,
                                                 std::ostream& out, std::ostream& err);

/// What the manual and the completions say of an option.
struct OptionDescription {
  /// With its two hyphens.
  std::string name;
  /// "-h"; "" for the many that have none.
  std::string shortName;
  /// What its value is called, e.g. "PATH"; empty for an option that takes none.
  std::string value;
  std::string description;
};

/// All options, --help and --version among them.
[[nodiscard]] std::vector<OptionDescription> DescribeOptions();

/// What stands behind the options in the help.
[[nodiscard]] std::string HelpNotes();

}  // namespace quillomat
