// What the windows show and the lists hold, so that two moments of a program can be compared.
#pragma once

#include <map>
#include <string>

#include "app/program.h"

namespace quillomat {

using ProgramImage = std::map<std::string, std::string>;

inline std::string ValueOf(const Control& control) {
  if (const auto* box = control.As<TextBox>()) return box->Text();
  if (const auto* combo = control.As<ComboBox>()) return std::to_string(combo->ListIndex());
  if (const auto* box = control.As<CheckBox>()) {
    return std::to_string(static_cast<int>(box->Value()));
  }
  if (const auto* option = control.As<OptionButton>()) return option->Value() ? "1" : "0";
  if (const auto* label = control.As<Label>()) return label->Caption();
  if (const auto* command = control.As<CommandButton>()) return command->Caption();
  return control.As<Frame>()->Caption();
}

/// Value and state of every control but the output, and all lists.
inline ProgramImage ImageOf(Program& program) {
  ProgramImage image;
  for (const Form* form :
       {static_cast<Form*>(&program.frmMain), static_cast<Form*>(&program.frmParams),
        static_cast<Form*>(&program.frmHelp)}) {
    for (const Control* control : form->Controls()) {
      image[form->Name() + "." + control->Name()] =
          ValueOf(*control) + (control->Enabled() ? "" : " (disabled)");
    }
  }
  image.erase("frmMain.txbOutput");
  image.erase("frmParams.lblState");
  for (const char* label :
       {"NumberOfWords", "NumWordsExcluded", "NumOccurrences", "TotalNumOccurrences"}) {
    image.erase(std::string("frmMain.lbl") + label);
  }
  const auto joined = [](const auto& words) {
    std::string text;
    for (const auto& word : words) text.append(word).append(" ");
    return text;
  };
  const WordLists& lists = program.Settings().lists;
  image["IgnoreList"] = joined(lists.IgnoreList.Words());
  image["CountOnlyList"] = joined(lists.CountOnlyList.Words());
  image["ExtraIgnoreList"] = joined(lists.ExtraIgnoreList.Words());
  image["ExtraCountOnlyList"] = joined(lists.ExtraCountOnlyList.Words());
  image["a.txt is scanned"] = std::to_string(program.Count().Extensions().IsScannable("a.txt"));
  image["a.bak is scanned"] = std::to_string(program.Count().Extensions().IsScannable("a.bak"));
  return image;
}

/// What `later` shows otherwise than `earlier`, a line each; empty when they agree.
inline std::string Differences(const ProgramImage& earlier, const ProgramImage& later) {
  std::string text;
  for (const auto& [name, value] : earlier) {
    const auto found = later.find(name);
    const std::string other = found == later.end() ? "(missing)" : found->second;
    if (other != value) text += name + ": \"" + value + "\" became \"" + other + "\"\n";
  }
  return text;
}

}  // namespace quillomat
