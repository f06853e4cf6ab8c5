#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <ostream>
#include <string_view>
#include <utility>

#include "base/text_helpers.h"
#include "base/version.h"
#include "cli/answers.h"
#include "cli/exit_status.h"
#include "cli/export_options.h"
#include "cli/file_report.h"
#include "cli/help_formatter.h"
#include "cli/option_conflicts.h"
#include "cli/option_errors.h"
#include "cli/standard_output.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

constexpr std::int32_t kMostThreads = 64;

constexpr const char* kFooter =
    "An option and its opposite: (on) tells what holds without them.\n"
    "\n"
    "Controls for --set are those of the main window and the panel, by name:\n"
    "  --set chkDropFinalS=1   --set 'txbFileExtensions(0)=txt htm'   --set cboLongWordSize=20\n"
    "A check box takes 0, 1 or 2 (grey), a list an item's text or #INDEX. Options and --set\n"
    "are applied together, after a state; two that contradict each other are an error.\n"
    "\n"
    "Formats: 0 rank frequency word, 1 rank word frequency, 2 rank frequency, 3 rank word,\n"
    "4 frequency rank, 5 frequency word, 6 word rank, 7 word frequency, 8 word, 9 word (+commas),\n"
    "10 Zipf data; with count-only words, of --folder and any PATH also 11 word freq no.files,\n"
    "12 word file-list, 13 word file-list (+freq).\n"
    "\n"
    "Exit status: 0 a list was made, 1 the count was refused or failed, 2 wrong command line,\n"
    "130 interrupted (Ctrl+C), 143 asked to end: at once, with every file as it was or new as a\n"
    "whole (standard error says which are new), unless --list-on-interrupt has a list made.";

/// The headings of help, in their order.
constexpr auto kHeadings = std::to_array<std::pair<OptionGroup, const char*>>(
    {{OptionGroup::kTheText, "The text, in place of PATH (one of the first three)"},
     {OptionGroup::kTheList, "The list"},
     {OptionGroup::kWhatAWordIs, "What a word is"},
     {OptionGroup::kWordsLeftOut, "Words that are left out"},
     {OptionGroup::kWordLists, "Words to ignore, or to count alone"},
     {OptionGroup::kStates, "Settings"}});
constexpr const char* kRunHeading = "The run";

/// An option that takes a value, or several when it may be repeated.
template <typename Value>
CLI::Option* AddValue(CLI::App& app, const char* name, Value& value, const char* argument,
                      const char* help) {
  return app.add_option(name, value, help)->option_text(argument)->allow_extra_args(false);
}

void DefineText(CLI::App& app, CommandLine& options) {
  app.add_option("PATH", options.paths,
                 "Files, folders, and - for standard input: counted together, in the order given")
      ->option_text("...");
  AddValue(app, "--file", options.file, "PATH|-", "Count the words of a text file");
  AddValue(app, "--folder", options.folder, "PATH", "Count the words of a folder's files");
  AddValue(app, "--text", options.text, "PATH|-",
           "Count the words of PATH, or of standard input for -, as a clipboard text: in one piece "
           "of 100,000 characters at most");
  AddValue(app, "--explain", options.explain, "TEXT|-",
           "Count nothing, but tell what would become of every piece of TEXT, or of standard input "
           "for -: a line each with the piece, whether it is counted, and the word or the reason");
  app.add_flag("--list-files", options.listFiles,
               "With a folder: list the files that would be read, and count nothing");
}

void DefineExports(CLI::App& app, CommandLine& options) {
  AddValue(app, "--export", options.exports, "FILE|-",
           "Write the words as a table, too: csv, tsv, xlsx, html, md, json or jsonl, by the "
           "ending; may be repeated; - for standard output, in place of the list");
  AddValue(app, "--export-format", options.exportFormat, "FORMAT",
           "The form of an export whose name does not tell it, by such an ending; csv for - if "
           "not given");
  AddValue(app, "--columns", options.columns, "LIST",
           "Columns of --export: rank, word, frequency, percent, per-million, cumulative, length, "
           "files; with file a row for every file that a word occurs in");
  AddValue(app, "--report", options.report, "FILE",
           "Write a line for every file that was met: its size, encoding, line ends, lines and "
           "words, or why it was skipped; csv, tsv, json or jsonl, by the ending");
}

void DefineStates(CLI::App& app, CommandLine& options, std::vector<std::string>& set) {
  AddValue(app, "--set", set, "CONTROL=VALUE", "Set a control before the count; may be repeated");
  AddValue(app, "--state", options.state, "FILE", "Start from the settings in a state file");
  AddValue(app, "--save-state", options.saveState, "FILE",
           "Write the settings of this count to a state file");
  app.add_flag("--user-settings", options.userSettings,
               "Start from the settings that the program saved when the user quit");
}

void DefineRun(CLI::App& app, CommandLine& options, std::vector<std::string>& answers) {
  AddValue(app, "--top", options.top, "N", "List the first N words only, in the order asked for")
      ->check(WholeNumberFrom(1, std::numeric_limits<std::int32_t>::max()));
  app.add_flag("--null", options.null,
               "End the lines of the list with a NUL byte: names of files may hold line breaks");
  app.add_flag("--summary", options.summary, "Print the summary of the count on standard error");
  app.add_flag(
      "--statistics", options.statistics,
      "Print statistics on standard error, a NAME<tab>VALUE line each; exports with a place "
      "for them then have them all");
  app.add_flag("--window-text", options.windowText,
               "Print what the window's output box shows at the end, not the whole list");
  app.add_flag("--progress", options.progress,
               "Show the progress on standard error, also where that is no terminal; on a terminal "
               "it shows by itself when a count takes long");
  app.add_flag("--list-on-interrupt", options.listOnInterrupt,
               "On Ctrl+C while the text is counted list what was counted until then");
  AddValue(app, "--threads", options.threads, "N",
           "How many threads may scan a large text; one for every core if not given")
      ->check(WholeNumberFrom(1, kMostThreads));
  AddValue(app, "--answer", answers, "TITLE=ANSWER",
           "The answer to the question with that title, e.g. "
           "'The output file exists.=OK'; may be repeated");
}

/// The options of the table of settings.
class SettingOptions {
 public:
  SettingOptions() {
    for (const Setting& setting : AllSettings()) {
      if (setting.option.kind != OptionKind::kNone) given_.push_back({&setting, {}});
    }
    defined_.resize(given_.size());
  }

  void Define(CLI::App& app, OptionGroup group) {
    for (std::size_t i = 0; i < given_.size(); ++i) {
      const SettingOption& option = given_[i].setting->option;
      if (option.group == group) defined_[i] = Define(app, option, given_[i].values);
    }
  }

  /// What was given, once the arguments are parsed.
  [[nodiscard]] std::vector<GivenOption> Given() const {
    std::vector<GivenOption> given;
    for (std::size_t i = 0; i < given_.size(); ++i) {
      if (!defined_[i]->results().empty()) {
        given.push_back({given_[i].setting, defined_[i]->results()});
      }
    }
    return given;
  }

 private:
  static CLI::Option* Define(CLI::App& app, const SettingOption& option,
                             std::vector<std::string>& values) {
    const std::string name(option.name);
    const std::string help(option.help);
    if (option.kind == OptionKind::kSwitch) {
      return app.add_flag(name + ",!" + std::string(option.opposite), help);
    }
    return AddValue(app, name.c_str(), values, std::string(option.argument).c_str(), help.c_str());
  }

  std::vector<GivenOption> given_;
  std::vector<CLI::Option*> defined_;
};

std::string VersionLine() {
  return "quillomat-cli " + VersionText() + " (Unicode " + UnicodeVersion() + ")";
}

/// Options get the heading of the group under which they are defined.
void DefineOptions(CLI::App& app, CommandLine& options, SettingOptions& settings,
                   std::vector<std::string>& set, std::vector<std::string>& answers) {
  for (const auto& [group, heading] : kHeadings) {
    app.option_defaults()->group(heading);
    if (group == OptionGroup::kTheText) DefineText(app, options);
    if (group == OptionGroup::kStates) DefineStates(app, options, set);
    settings.Define(app, group);
    if (group == OptionGroup::kTheList) DefineExports(app, options);
  }
  app.option_defaults()->group(kRunHeading);
  DefineRun(app, options, answers);
  app.set_help_flag("-h,--help", "Print this help");
  app.set_version_flag("--version", VersionLine(), "Print the version");
  app.footer(kFooter);
}

/// Splits at the first "="; an argument that has not the form is at fault.
std::vector<std::pair<std::string, std::string>> SplitPairs(const std::string& option,
                                                            const std::string& form,
                                                            const std::vector<std::string>& items) {
  std::vector<std::pair<std::string, std::string>> pairs;
  for (const std::string& item : items) {
    const std::size_t equals = item.find('=');
    if (equals == std::string::npos || equals == 0) {
      throw CLI::ValidationError(option, "'" + item + "' must have the form " + form);
    }
    pairs.emplace_back(item.substr(0, equals), item.substr(equals + 1));
  }
  return pairs;
}

void DescribeOptionsOf(const CLI::App& app, std::vector<OptionDescription>& descriptions) {
  for (const CLI::Option* option : app.get_options()) {
    // Every group has the help of its own.
    if (!descriptions.empty() && option->get_name() == descriptions.front().name) continue;
    const bool takesValue = option->get_items_expected_max() > 0;
    for (const std::string& name : option->get_lnames()) {
      const std::vector<std::string>& letters = option->get_snames();
      descriptions.push_back({"--" + name, letters.empty() ? "" : "-" + letters.front(),
                              takesValue ? option->get_option_text() : "",
                              option->get_description()});
    }
  }
  // Groups of options are parts of their own there.
  for (const CLI::App* group : app.get_subcommands([](const CLI::App*) { return true; })) {
    DescribeOptionsOf(*group, descriptions);
  }
}

/// There is one, of one kind.
void CheckSource(const CommandLine& options) {
  std::vector<std::string> given;
  if (!options.paths.empty()) given.push_back(options.paths.front());
  const auto take = [&given](const char* name, const std::optional<std::string>& value) {
    if (value) given.push_back(std::string(name) + " " + *value);
  };
  take("--file", options.file);
  take("--folder", options.folder);
  take("--text", options.text);
  take("--explain", options.explain);
  if (given.size() == 1) return;
  const std::string fault =
      given.empty() ? "no text" : "more than one text (" + given[0] + ", " + given[1] + ")";
  throw CLI::ValidationError(fault, "give paths, or one of --file, --folder, --text and --explain");
}

void CheckCombinations(const CommandLine& options) {
  CheckSource(options);
  if (const auto conflict = FindConflict(options)) {
    throw CLI::ValidationError(conflict->option, conflict->why);
  }
  for (const auto& fault : {FindExportFault(options), FindReportFault(options)}) {
    if (fault) throw CLI::ValidationError(*fault);
  }
}

}  // namespace

ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments, std::ostream& out,
                                   std::ostream& err) {
  ParsedCommandLine result;
  const auto fail = [&](const std::string& what) {
    err << kOwnError << OnOneLine(what) << " (see quillomat-cli --help)\n";
    result.exitStatus = kWrongCommandLine;
  };
  // Most often a variable without a value; the library would take one for the end of all options.
  const auto empty = std::ranges::find(arguments, std::string());
  if (empty != arguments.end() && empty != arguments.begin()) {
    fail("argument " + std::to_string(empty - arguments.begin()) +
         " is empty; check what should stand there");
    return result;
  }
  CLI::App app("Quillomat counts words: how often does each occur in a text?", "quillomat-cli");
  app.allow_windows_style_options(false);  // "/a" is a path
  app.formatter(std::make_shared<HelpFormatter>());
  SettingOptions settings;
  std::vector<std::string> set;
  std::vector<std::string> answers;
  DefineOptions(app, result.options, settings, set, answers);
  std::vector<std::string> given(
      arguments.begin() + std::min<std::ptrdiff_t>(1, std::ssize(arguments)), arguments.end());
  if (const auto fault = FindArgumentFault(app, given)) {
    fail(*fault);
    return result;
  }
  try {
    std::ranges::reverse(given);  // the library takes them from the back on
    app.parse(std::move(given));
    result.options.settings = settings.Given();
    CheckCombinations(result.options);
    result.options.set = SplitPairs("--set", "CONTROL=VALUE", set);
    result.options.answers = SplitPairs("--answer", "TITLE=ANSWER", answers);
    for (const auto& [title, word] : result.options.answers) {
      if (const auto fault = WhyNoAnswer(title, word)) {
        throw CLI::ValidationError("--answer", *fault);
      }
    }
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

std::vector<OptionDescription> DescribeOptions() {
  CLI::App app;
  CommandLine options;
  SettingOptions settings;
  std::vector<std::string> set;
  std::vector<std::string> answers;
  DefineOptions(app, options, settings, set, answers);
  std::vector<OptionDescription> descriptions;
  DescribeOptionsOf(app, descriptions);
  return descriptions;
}

std::string HelpNotes() {
  return kFooter;
}

}  // namespace quillomat
