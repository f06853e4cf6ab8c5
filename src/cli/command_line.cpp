#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <ostream>
#include <utility>

#include "app/captions.h"
#include "base/text_helpers.h"
#include "cli/exit_status.h"

namespace quillomat {
namespace {

constexpr unsigned kMostThreads = 64;

constexpr const char* kFooter =
    "Controls for --set are those of the main window and the panel, by name:\n"
    "  --set chkDropFinalS=1   --set 'txbFileExtensions(0)=txt htm'   --set cboLongWordSize=20\n"
    "A check box takes 0, 1 or 2 (grey), a list an item's text or #INDEX.\n"
    "\n"
    "Formats: 0 rank frequency word, 1 rank word frequency, 2 rank frequency, 3 rank word,\n"
    "4 frequency rank, 5 frequency word, 6 word rank, 7 word frequency, 8 word, 9 word (+commas),\n"
    "10 Zipf data; of a folder with count-only words also 11 word freq no.files,\n"
    "12 word file-list, 13 word file-list (+freq).\n"
    "\n"
    "Exit status: 0 a list was made, 1 the count was refused or failed, 2 wrong command line,\n"
    "130 interrupted (Ctrl+C), 143 asked to end; then every file is as it was.";

void DefineOptions(CLI::App& app, CommandLine& options, std::vector<std::string>& set,
                   std::vector<std::string>& answers) {
  auto* source = app.add_option_group("source", "Where the text comes from (one of these)");
  source->add_option("--file", options.file, "Count the words of a text file")->type_name("PATH");
  source->add_option("--folder", options.folder, "Count the words of a folder's files")
      ->type_name("PATH");
  source
      ->add_option("--text", options.text,
                   "Count the words of PATH, or of standard input for -, as a clipboard text")
      ->type_name("PATH|-");
  source->require_option(1);
  app.add_flag("--subfolders", options.subfolders, "With --folder: the folders below it, too");
  app.add_flag("--list-files", options.listFiles,
               "With --folder: list the files that would be read, and count nothing");
  app.add_option("--order", options.order, "frequency (the default) or alphabetical")
      ->type_name("ORDER");
  app.add_option(
         "--format", options.format,
         "A display format by its name or number, 0 to 13; 'rank frequency word' if not given")
      ->type_name("FORMAT");
  app.add_option("--output", options.output, "Write the list to a file, not to standard output")
      ->type_name("PATH");
  app.add_option("--set", set, "Set a control before the count; may be repeated")
      ->type_name("CONTROL=VALUE")
      ->allow_extra_args(false);
  app.add_option("--state", options.state, "Start from the settings in a state file")
      ->type_name("FILE");
  app.add_option("--save-state", options.saveState,
                 "Write the settings of this count to a state file")
      ->type_name("FILE");
  app.add_flag("--user-settings", options.userSettings,
               "Start from the settings that the program saved when the user quit");
  app.add_flag("--summary", options.summary, "Print the summary of the count on standard error");
  app.add_flag("--window-text", options.windowText,
               "Print what the window's output box shows at the end, not the whole list");
  app.add_option("--threads", options.threads,
                 "How many threads may scan a large text; one for every core if not given")
      ->type_name("N")
      ->check(CLI::Range(1U, kMostThreads));
  app.add_option("--answer", answers,
                 "The answer to the question with that title, e.g. "
                 "'The output file exists.=OK'; may be repeated")
      ->type_name("TITLE=ANSWER")
      ->allow_extra_args(false);
}

/// Splits "NAME=VALUE" at the first "="; without one the argument is at fault.
std::vector<std::pair<std::string, std::string>> SplitPairs(const std::string& option,
                                                            const std::vector<std::string>& items) {
  std::vector<std::pair<std::string, std::string>> pairs;
  for (const std::string& item : items) {
    const std::size_t equals = item.find('=');
    if (equals == std::string::npos || equals == 0) {
      throw CLI::ValidationError(option, "'" + item + "' must have the form NAME=VALUE");
    }
    pairs.emplace_back(item.substr(0, equals), item.substr(equals + 1));
  }
  return pairs;
}

void CheckCombinations(const CommandLine& options) {
  const auto needsFolder = [&](bool given, const char* option) {
    if (given && !options.folder) throw CLI::ValidationError(option, "goes with --folder");
  };
  needsFolder(options.subfolders, "--subfolders");
  needsFolder(options.listFiles, "--list-files");
  if (options.state && options.userSettings) {
    throw CLI::ValidationError("--state", "does not go with --user-settings");
  }
}

}  // namespace

ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments, std::ostream& out,
                                   std::ostream& err) {
  ParsedCommandLine result;
  const auto fail = [&](const std::string& what) {
    err << "quillomat-cli: " << OnOneLine(what) << " (see quillomat-cli --help)\n";
    result.exitStatus = kWrongCommandLine;
  };
  if (arguments.size() > 1 && !arguments[1].starts_with('-')) {
    fail("'" + arguments[1] + "': give a file with --file, a folder with --folder");
    return result;
  }
  CLI::App app("Quillomat counts words: how often does each occur in a text?", "quillomat-cli");
  app.set_help_flag("--help", "Print this help");
  app.set_version_flag("--version", "quillomat-cli " + VersionText());
  app.footer(kFooter);
  std::vector<std::string> set;
  std::vector<std::string> answers;
  DefineOptions(app, result.options, set, answers);
  try {
    // The library takes them from the back on, without the program's name.
    std::vector<std::string> remaining(arguments.rbegin(), arguments.rend());
    if (!remaining.empty()) remaining.pop_back();
    app.parse(std::move(remaining));
    CheckCombinations(result.options);
    result.options.set = SplitPairs("--set", set);
    result.options.answers = SplitPairs("--answer", answers);
  } catch (const CLI::CallForHelp&) {
    out << app.help();
    result.exitStatus = kListMade;
  } catch (const CLI::CallForVersion&) {
    out << app.version() << '\n';
    result.exitStatus = kListMade;
  } catch (const CLI::ParseError& error) {
    fail(error.what());
  }
  return result;
}

}  // namespace quillomat
