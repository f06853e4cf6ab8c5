#include "cli/option_conflicts.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillomat {
namespace {

struct RunOption {
  std::string_view name;
  bool (*isGiven)(const CommandLine& options);
};

/// Those that stand for no setting and take part in a conflict.
constexpr auto kRunOptions = std::to_array<RunOption>(
    {{"--file", [](const CommandLine& options) { return options.file.has_value(); }},
     {"--text", [](const CommandLine& options) { return options.text.has_value(); }},
     {"--explain", [](const CommandLine& options) { return options.explain.has_value(); }},
     {"--list-files", [](const CommandLine& options) { return options.listFiles; }},
     {"--window-text", [](const CommandLine& options) { return options.windowText; }},
     {"--summary", [](const CommandLine& options) { return options.summary; }},
     {"--statistics", [](const CommandLine& options) { return options.statistics; }},
     {"--top", [](const CommandLine& options) { return options.top.has_value(); }},
     {"--export", [](const CommandLine& options) { return !options.exports.empty(); }},
     {"--report", [](const CommandLine& options) { return options.report.has_value(); }},
     {"--progress", [](const CommandLine& options) { return options.progress; }},
     {"--list-on-interrupt", [](const CommandLine& options) { return options.listOnInterrupt; }},
     {"--null", [](const CommandLine& options) { return options.null; }},
     {"--state", [](const CommandLine& options) { return options.state.has_value(); }},
     {"--user-settings", [](const CommandLine& options) { return options.userSettings; }}});

struct Rule {
  std::string_view option;
  /// Those with which it does not go.
  std::array<std::string_view, 4> others;
  /// "" for "does not go with" the other.
  std::string_view why = {};
};

// What the window shows, lists of files and explanations are not made by a count in the terminal.
constexpr auto kRules = std::to_array<Rule>({
    {"--subfolders", {"--file", "--text"}, "goes with a folder"},
    {"--list-files", {"--file", "--text"}, "goes with a folder"},
    {"--subfolders", {"--explain"}},
    {"--list-files", {"--explain"}},
    {"--window-text", {"--explain"}},
    {"--only-extensions", {"--explain"}},
    {"--not-extensions", {"--explain"}},
    {"--null", {"--window-text", "--list-files", "--explain"}},
    {"--disable-output", {"--output"}, "contradicts --output"},
    {"--top", {"--window-text", "--list-files", "--explain"}},
    {"--export", {"--window-text", "--list-files", "--explain"}},
    {"--report", {"--text", "--list-files", "--explain"}},
    {"--statistics", {"--list-files", "--explain"}},
    {"--summary", {"--list-files", "--explain"}},
    {"--output", {"--list-files", "--explain"}},
    {"--progress", {"--text", "--window-text", "--list-files", "--explain"}},
    {"--list-on-interrupt", {"--text", "--window-text", "--list-files", "--explain"}},
    {"--state", {"--user-settings"}},
});

}  // namespace

bool IsGiven(const CommandLine& options, std::string_view name) {
  const auto* const ofRun = std::ranges::find(kRunOptions, name, &RunOption::name);
  if (ofRun != kRunOptions.end()) return ofRun->isGiven(options);
  return std::ranges::any_of(options.settings, [&](const GivenOption& given) {
    return given.setting->option.name == name && given.values.back() != "false";
  });
}

std::optional<OptionConflict> FindConflict(const CommandLine& options) {
  for (const Rule& rule : kRules) {
    if (!IsGiven(options, rule.option)) continue;
    for (const std::string_view other : rule.others) {
      if (other.empty() || !IsGiven(options, other)) continue;
      const std::string why =
          rule.why.empty() ? "does not go with " + std::string(other) : std::string(rule.why);
      return OptionConflict{std::string(rule.option), why};
    }
  }
  return std::nullopt;
}

}  // namespace quillomat
