#include "app/exports/setting_facts.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "app/count/panel_choices.h"
#include "app/setting_values.h"
#include "app/settings_table.h"
#include "system/paths.h"

namespace quillomat {
namespace {

using Source = CountedText::Source;
using Value = std::optional<FactValue>;

bool HasFilesOfFolders(const CountedText& text) {
  return text.source == Source::kFolder || text.source == Source::kPaths;
}

/// Those of the main window that count choose among the files of a folder.
bool BearsOnWords(const Setting& setting, const CountedText& text) {
  if (setting.window == SettingWindow::kPanel) return setting.entails != Entails::kNothing;
  return setting.entails == Entails::kRescan && !setting.isPath && HasFilesOfFolders(text);
}

Value TextValue(std::string text) {
  return text.empty() ? std::nullopt : Value(std::move(text));
}

/// 1 where the box beside the number is not checked, as in a terminal.
Value NumberValue(const Setting& setting, const Control& control, const ParamsForm& frmParams) {
  if (!setting.switchedBy.empty()) {
    const auto* box = frmParams.Find(setting.switchedBy)->As<CheckBox>();
    if (box != nullptr && !box->IsChecked()) return std::int64_t{1};
  }
  const std::string text = ValueTextOf(control);
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() ? Value(number) : std::nullopt;
}

Value ChoiceValue(const Setting& setting, const ComboBox& list) {
  const auto index = static_cast<std::size_t>(std::max(list.ListIndex(), 0));
  if (index >= setting.option.choices.size()) return std::nullopt;
  return std::string(setting.option.choices[index]);
}

/// The pairs as the terminal takes them: "/*,*/ //".
Value MarkerPairs(const ParamsForm& frmParams) {
  if (!frmParams.chkAllowCommentMarkers.IsChecked()) return std::nullopt;
  std::string pairs;
  for (std::size_t i = 0; i < frmParams.txbStartComment.size(); ++i) {
    const std::string& start = frmParams.txbStartComment[i].Text();
    const std::string& end = frmParams.txbEndComment[i].Text();
    if (start.empty()) continue;
    pairs.append(pairs.empty() ? "" : " ").append(start);
    if (!end.empty()) pairs.append(",").append(end);
  }
  return TextValue(pairs);
}

Value ValueOf(const Setting& setting, const MainForm& frmMain, const ParamsForm& frmParams) {
  const Control& control = ControlOf(setting, frmMain, frmParams);
  switch (setting.option.kind) {
    case OptionKind::kNone:
      return std::nullopt;
    case OptionKind::kSwitch:
      return control.As<CheckBox>()->IsChecked();
    case OptionKind::kNumber:
      return NumberValue(setting, control, frmParams);
    case OptionKind::kChoice:
      return ChoiceValue(setting, *control.As<ComboBox>());
    case OptionKind::kText:
    case OptionKind::kList:
      return TextValue(setting.isPath ? AbsolutePath(ValueTextOf(control)) : ValueTextOf(control));
    case OptionKind::kMarkers:
      return MarkerPairs(frmParams);
  }
  return std::nullopt;
}

bool NamesCountOnlyWords(const Control& control, const ParamsForm& frmParams) {
  using enum WordListKind;
  return &control == &WordsFileBoxOf(frmParams, kCountOnly) ||
         &control == &TypedWordsBoxOf(frmParams, kCountOnly);
}

/// As whoever makes the count again names it, from wherever.
std::string PathAsNamed(const std::string& path) {
  return path == kStandardInputPath ? "-" : AbsolutePath(path);
}

std::vector<std::string> PathsAsNamed(const std::vector<std::string>& paths) {
  std::vector<std::string> named;
  named.reserve(paths.size());
  for (const std::string& path : paths) named.push_back(PathAsNamed(path));
  return named;
}

std::vector<ExportFact> FactsOf(const CountedText& text, const std::string& clipboardFile) {
  switch (text.source) {
    case Source::kFile:
      return {{"file", PathAsNamed(text.path)}};
    case Source::kFolder:
      return {{"folder", PathAsNamed(text.path)}};
    case Source::kPaths:
      return {{"paths", PathsAsNamed(text.paths)}};
    case Source::kClipboard:
      return {{"text", clipboardFile.empty() ? "clipboard" : PathAsNamed(clipboardFile)}};
    case Source::kNone:
      break;
  }
  return {};
}

}  // namespace

std::vector<ExportFact> SettingFactsOf(const CountedText& text, const InForce& inForce,
                                       const MainForm& frmMain, const ParamsForm& frmParams) {
  constexpr std::string_view kHyphens = "--";
  const bool countsAll = !inForce.lists.HasCountOnlyWords();
  std::vector<ExportFact> facts = FactsOf(text, inForce.filesRead.clipboardText);
  for (const Setting& setting : AllSettings()) {
    if (!BearsOnWords(setting, text)) continue;
    if (countsAll && NamesCountOnlyWords(ControlOf(setting, frmMain, frmParams), frmParams)) {
      continue;
    }
    Value value = ValueOf(setting, frmMain, frmParams);
    if (!value) continue;
    facts.push_back({std::string(setting.option.name.substr(kHyphens.size())), *std::move(value)});
  }
  return facts;
}

}  // namespace quillomat
