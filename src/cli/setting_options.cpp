#include "cli/setting_options.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

#include "app/count/panel_choices.h"
#include "app/setting_values.h"
#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "cli/control_settings.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

using Fault = std::optional<std::string>;

template <typename Items>
std::string Listed(const Items& items) {
  std::string text;
  for (const auto& item : items) text.append(text.empty() ? "" : ", ").append(item);
  return text;
}

std::string NamesOfSettings() {
  std::vector<std::string_view> names;
  for (const Setting& setting : AllSettings()) names.push_back(setting.control);
  return Listed(names);
}

class SettingsWriter {
 public:
  SettingsWriter(MainForm& frmMain, ParamsForm& frmParams)
      : frmMain_(frmMain), frmParams_(frmParams) {}

  Fault TakeSet(const std::string& name, const std::string& value) {
    return Set(name, value, "--set " + name + "=" + value);
  }

  Fault TakeOption(const GivenOption& given) {
    const SettingOption& option = given.setting->option;
    if (option.kind == OptionKind::kMarkers) return TakeMarkers(option, given.values);
    for (const std::string& value : given.values) {
      if (Fault fault = TakeValue(*given.setting, value)) return fault;
    }
    return std::nullopt;
  }

 private:
  /// `source` is what the user has written.
  Fault Set(std::string_view name, const std::string& value, const std::string& source) {
    Control* const control = FindControl(frmMain_, frmParams_, name);
    if (control == nullptr) {
      return source + ": there is no control named '" + std::string(name) + "'; the settings are " +
             NamesOfSettings();
    }
    if (const Fault fault = SetValue(*control, value)) return source + ": " + *fault;
    const std::string now = LanguageFreeValueOf(*control);
    const auto [before, isFirst] = taken_.try_emplace(control, Taken{source, now});
    if (isFirst || before->second.value == now) return std::nullopt;
    return source + " contradicts " + before->second.source;
  }

  Fault TakeValue(const Setting& setting, const std::string& value) {
    const SettingOption& option = setting.option;
    const std::string source = std::string(option.name) + " " + value;
    switch (option.kind) {
      case OptionKind::kSwitch: {
        const bool checked = value == "true";
        return Set(setting.control, checked ? "1" : "0",
                   std::string(checked ? option.name : option.opposite));
      }
      case OptionKind::kNumber:
        return TakeNumber(setting, value, source);
      case OptionKind::kChoice:
        return TakeChoice(setting, value, source);
      case OptionKind::kList:
        return Set(setting.control, ReplaceAll(value, ",", " "), source);
      default:
        return Set(setting.control, value, source);
    }
  }

  Fault TakeNumber(const Setting& setting, const std::string& value, const std::string& source) {
    const bool hasBox = !setting.switchedBy.empty();
    if (hasBox && value == kOff) return Set(setting.switchedBy, "0", source);
    const auto items = FindControl(frmMain_, frmParams_, setting.control)->As<ComboBox>()->Items();
    if (std::ranges::find(items, value) == items.end()) {
      return source + ": takes one of " + (hasBox ? std::string(kOff) + ", " : "") + Listed(items);
    }
    if (Fault fault = Set(setting.control, value, source)) return fault;
    return hasBox ? Set(setting.switchedBy, "1", source) : std::nullopt;
  }

  Fault TakeChoice(const Setting& setting, const std::string& value, const std::string& source) {
    const auto& choices = setting.option.choices;
    for (std::size_t i = 0; i < choices.size(); ++i) {
      const std::string number = std::to_string(i);
      if (value != number && !EqualIgnoringCase(value, choices[i])) continue;
      return Set(setting.control, "#" + number, source);
    }
    if (setting.option.find != nullptr) {
      const std::optional<std::size_t> item = setting.option.find(value);
      if (item) return Set(setting.control, "#" + std::to_string(*item), source);
    }
    return source + ": takes a number from 0 to " + std::to_string(choices.size() - 1) +
           " or one of: " + Listed(choices);
  }

  /// The pairs that are given are the only ones.
  Fault TakeMarkers(const SettingOption& option, const std::vector<std::string>& pairs) {
    if (pairs.size() > frmParams_.txbStartComment.size()) {
      return std::string(option.name) + ": there are two pairs of markers, not more";
    }
    for (std::size_t i = 0; i < frmParams_.txbStartComment.size(); ++i) {
      const std::string pair = i < pairs.size() ? pairs[i] : "";
      const std::string source = std::string(option.name) + " " + (pair.empty() ? pairs[0] : pair);
      const std::size_t comma = std::min(pair.find(','), pair.size());
      if (i < pairs.size() && comma == 0) {
        return source + ": must have the form START,END or START";
      }
      const std::string end = pair.substr(std::min(comma + 1, pair.size()));
      if (Fault fault = Set(frmParams_.txbStartComment[i].Name(), pair.substr(0, comma), source)) {
        return fault;
      }
      if (Fault fault = Set(frmParams_.txbEndComment[i].Name(), end, source)) return fault;
    }
    return Set(frmParams_.chkAllowCommentMarkers.Name(), "1",
               std::string(option.name) + " " + pairs[0]);
  }

  struct Taken {
    std::string source;
    std::string value;
  };

  /// The number that stands for no limit.
  static constexpr const char* kOff = "1";

  MainForm& frmMain_;
  ParamsForm& frmParams_;
  std::map<const Control*, Taken> taken_;
};

}  // namespace

std::optional<std::string> ApplySettings(MainForm& frmMain, ParamsForm& frmParams,
                                         std::span<const GivenOption> options,
                                         const ControlValues& set) {
  SettingsWriter writer(frmMain, frmParams);
  for (const GivenOption& option : options) {
    if (Fault fault = writer.TakeOption(option)) return fault;
  }
  for (const auto& [name, value] : set) {
    if (Fault fault = writer.TakeSet(name, value)) return fault;
  }
  return std::nullopt;
}

std::optional<std::string> FindWordsFileFault(std::span<const GivenOption> options) {
  for (const auto& [setting, values] : options) {
    const SettingOption& option = setting->option;
    if (option.group != OptionGroup::kWordLists || !setting->isPath) continue;
    const std::string& path = values.back();
    if (FileExists(path)) continue;
    const std::string name(option.name);
    if (FolderExists(path)) return name + " " + path + " is a folder; name a file of words";
    return name + " " + path + " does not exist; check the path, or type the words (" + name +
           "-words)";
  }
  return std::nullopt;
}

std::optional<std::string> FindWordsFileFault(const ParamsForm& frmParams) {
  using enum WordListKind;
  for (const WordListKind kind : {kIgnore, kCountOnly}) {
    const TextBox& box = WordsFileBoxOf(frmParams, kind);
    const std::string& path = box.Text();
    if (path.empty() || FileExists(path)) continue;
    return "the words file " + path + ", which the settings name, does not exist; " +
           (kind == kIgnore ? "--ignore" : "--only") + " FILE names another, --set '" + box.Name() +
           "=' none";
  }
  return std::nullopt;
}

}  // namespace quillomat
