// What the terminal says about settings, down to the controls. Each test starts from the arguments,
// on the windows of a first start.
#include "cli/setting_options.h"

#include <gmock/gmock.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "support/program_fixture.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

using Values = std::map<std::string, std::string>;

class SettingOptions : public ProgramFixture {
 protected:
  static std::string ValueOf(const Control& control) {
    if (const auto* box = control.As<CheckBox>()) {
      return std::to_string(static_cast<int>(box->Value()));
    }
    if (const auto* combo = control.As<ComboBox>()) return combo->Text();
    const auto* text = control.As<TextBox>();
    return text == nullptr ? "" : text->Text();
  }

  Values Now() {
    Values values;
    for (const Form* form : {static_cast<Form*>(&Main()), static_cast<Form*>(&Panel())}) {
      for (const Control* control : form->Controls()) values[control->Name()] = ValueOf(*control);
    }
    return values;
  }

  /// What is wrong with the arguments; "" when nothing is.
  std::string Apply(std::vector<std::string> arguments) {
    program.BeginControls();
    arguments.insert(arguments.begin(), {"quillomat-cli", "--folder", "texts"});
    std::ostringstream out;
    std::ostringstream err;
    const ParsedCommandLine parsed = ParseCommandLine(arguments, out, err);
    if (parsed.exitStatus) return err.str();
    return ApplySettings(Main(), Panel(), parsed.options.settings, parsed.options.set).value_or("");
  }

  /// What the arguments change, from the defaults on.
  Values Changes(const std::vector<std::string>& arguments) {
    program.Initialize();
    const Values before = Now();
    EXPECT_EQ(Apply(arguments), "");
    Values changed;
    for (const auto& [name, value] : Now()) {
      if (before.at(name) != value) changed[name] = value;
    }
    return changed;
  }
};

TEST_F(SettingOptions, EverySwitchSetsItsBoxAndNothingElse) {
  for (const Setting& setting : AllSettings()) {
    if (setting.option.kind != OptionKind::kSwitch) continue;
    SCOPED_TRACE(setting.control);
    const bool checkedAtFirst = std::get<int>(setting.initial) != 0;
    const std::string on(setting.option.name);
    const std::string off(setting.option.opposite);
    EXPECT_THAT(Changes({checkedAtFirst ? on : off}), IsEmpty());
    EXPECT_THAT(Changes({checkedAtFirst ? off : on}),
                testing::ElementsAre(
                    testing::Pair(std::string(setting.control), checkedAtFirst ? "0" : "1")));
  }
}

TEST_F(SettingOptions, EveryOtherOptionSetsItsControls) {
  const std::map<std::string, std::pair<std::string, Values>> cases = {
      {"--min-length", {"4", {{"chkIgnoreShortWords", "1"}, {"cboShortWordSize", "4"}}}},
      {"--max-length", {"20", {{"cboLongWordSize", "20"}}}},
      {"--min-count", {"9", {{"chkIgnoreInfrequentWords", "1"}, {"cboThresholdFrequency", "9"}}}},
      {"--comments",
       {"<!--,-->",
        {{"chkAllowCommentMarkers", "1"},
         {"txbStartComment(0)", "<!--"},
         {"txbEndComment(0)", "-->"},
         {"txbStartComment(1)", ""}}}},
      {"--letters", {"All", {{"cboLetters", "of all languages"}}}},
      {"--encoding", {"CP1251", {{"cboEncoding", "Windows-1251"}}}},
      {"--ignore", {"a b,c.txt", {{"txbWordsFile(0)", "a b,c.txt"}}}},
      {"--only", {"c.txt", {{"txbWordsFile(1)", "c.txt"}}}},
      {"--ignore-words", {"the,and of", {{"txbWordsToIgnoreOrCount(0)", "the and of"}}}},
      {"--only-words", {"ox", {{"txbWordsToIgnoreOrCount(1)", "ox"}}}},
      {"--only-extensions", {"txt,md", {{"txbFileExtensions(0)", "txt md"}}}},
      {"--not-extensions", {"c", {{"txbFileExtensions(1)", "c"}}}},
      {"--output", {"-o=1", {{"txbFile(1)", "-o=1"}}}},
      {"--order", {"Alphabetical", {{"cboWordOrder", "alphabetical"}}}},
      {"--format", {"word Frequency", {{"cboDisplayFormat", "word frequency"}}}}};
  std::vector<std::string> options;
  for (const Setting& setting : AllSettings()) {
    const SettingOption& option = setting.option;
    if (option.kind == OptionKind::kNone || option.kind == OptionKind::kSwitch) continue;
    const std::string name(option.name);
    SCOPED_TRACE(name);
    options.push_back(name);
    ASSERT_TRUE(cases.contains(name)) << "give it a case";
    const auto& [value, changes] = cases.at(name);
    EXPECT_EQ(Changes({name + "=" + value}), changes);
  }
  EXPECT_EQ(options.size(), cases.size());
}

TEST_F(SettingOptions, OneMeansNoLimit) {
  EXPECT_THAT(Changes({"--min-length", "1", "--min-count", "1"}), IsEmpty());
  Panel().chkIgnoreShortWords.SetChecked(true);
  EXPECT_EQ(Apply({"--min-length", "1"}), "");
  EXPECT_FALSE(Panel().chkIgnoreShortWords.IsChecked());
}

TEST_F(SettingOptions, EveryNumberOfAListIsTakenAndNoOther) {
  for (const Setting& setting : AllSettings()) {
    if (setting.option.kind != OptionKind::kNumber) continue;
    const std::string name(setting.option.name);
    for (const std::string& item : Panel().Find(setting.control)->As<ComboBox>()->Items()) {
      EXPECT_EQ(Apply({name, item}), "");
      EXPECT_EQ(Now().at(std::string(setting.control)), item);
    }
  }
  for (const char* number : {"0", "10", "-1", "x", "02", "2.0", "#1", "1000000000000000000000"}) {
    EXPECT_EQ(Apply({std::string("--min-length=") + number}),
              std::string("--min-length ") + number + ": takes one of 1, 2, 3, 4, 5, 6, 7, 8, 9");
  }
  EXPECT_EQ(Apply({"--max-length", "25"}),
            "--max-length 25: takes one of 20, 30, 40, 50, 60, 70, 80, 90, 100");
  EXPECT_EQ(Apply({"--max-length", "1"}),
            "--max-length 1: takes one of 20, 30, 40, 50, 60, 70, 80, 90, 100");
}

TEST_F(SettingOptions, ChoiceIsTakenByItsNumberToo) {
  EXPECT_EQ(Changes({"--format", "13"}), (Values{{"cboDisplayFormat", "word file-list (+freq)"}}));
  EXPECT_THAT(Apply({"--format", "14"}), HasSubstr("a number from 0 to 13 or one of: rank freq"));
  EXPECT_THAT(Apply({"--format", "07"}), HasSubstr("--format 07"));
  EXPECT_THAT(Apply({"--order", "nonsense"}), HasSubstr("frequency, alphabetical"));
}

TEST_F(SettingOptions, TwoPairsOfMarkersMayBeGiven) {
  EXPECT_EQ(Apply({"--comments", "#", "--comments", "{,}"}), "");
  EXPECT_EQ(Panel().txbStartComment[0].Text(), "#");
  EXPECT_EQ(Panel().txbEndComment[0].Text(), "");
  EXPECT_EQ(Panel().txbStartComment[1].Text(), "{");
  EXPECT_EQ(Panel().txbEndComment[1].Text(), "}");
  EXPECT_TRUE(Panel().chkAllowCommentMarkers.IsChecked());
  EXPECT_THAT(Apply({"--comments", "a", "--comments", "b", "--comments", "c"}),
              HasSubstr("--comments: there are two pairs"));
  EXPECT_THAT(Apply({"--comments", ",x"}), HasSubstr("--comments ,x: must have the form"));
}

TEST_F(SettingOptions, ContradictionNamesBothWhateverTheirOrder) {
  EXPECT_EQ(Apply({"--numerals", "--set", "chkAllowWordsWithNumerals=0"}),
            "--set chkAllowWordsWithNumerals=0 contradicts --numerals");
  EXPECT_EQ(Apply({"--set", "chkAllowWordsWithNumerals=0", "--numerals"}),
            "--set chkAllowWordsWithNumerals=0 contradicts --numerals");
  EXPECT_EQ(Apply({"--hyphens", "--no-hyphens"}), "--no-hyphens contradicts --hyphens");
  EXPECT_EQ(Apply({"--min-length", "3", "--min-length", "4"}),
            "--min-length 4 contradicts --min-length 3");
  EXPECT_EQ(Apply({"--min-length", "3", "--set", "chkIgnoreShortWords=0"}),
            "--set chkIgnoreShortWords=0 contradicts --min-length 3");
  EXPECT_EQ(Apply({"--comments", "#", "--keep-comments"}),
            "--comments # contradicts --keep-comments");
  EXPECT_EQ(Apply({"--set", "txbFile(1)=a", "--set", "txbFile[1]=b"}),
            "--set txbFile[1]=b contradicts --set txbFile(1)=a");
}

TEST_F(SettingOptions, WhatIsSaidTwiceIsNoContradiction) {
  EXPECT_EQ(Apply({"--numerals", "--numerals", "--set", "chkAllowWordsWithNumerals=1"}), "");
  EXPECT_EQ(Apply({"--max-length", "40", "--set", "cboLongWordSize=#2"}), "");
}

TEST_F(SettingOptions, WrongSetNamesTheControlAndWhatItTakes) {
  const std::string noControl = Apply({"--set", "chkNothing=1"});
  EXPECT_THAT(noControl, StartsWith("--set chkNothing=1: there is no control named 'chkNothing'; "
                                    "the settings are "));
  for (const Setting& setting : AllSettings()) {
    EXPECT_THAT(noControl, HasSubstr(setting.control));
  }
  EXPECT_EQ(Apply({"--set", "chkDropFinalS=7"}),
            "--set chkDropFinalS=7: a check box takes 0, 1 or 2");
}

TEST_F(SettingOptions, AreAllInTheHelpUnderTheirHeadings) {
  std::ostringstream out;
  std::ostringstream err;
  const ParsedCommandLine parsed = ParseCommandLine({"quillomat-cli", "--help"}, out, err);
  EXPECT_EQ(parsed.exitStatus, 0);
  const std::string help = out.str();
  for (const Setting& setting : AllSettings()) {
    if (setting.option.kind == OptionKind::kNone) continue;
    std::string line = "\n  " + std::string(setting.option.name);
    if (!setting.option.opposite.empty()) line.append(", ").append(setting.option.opposite);
    if (!setting.option.argument.empty()) line.append(" ").append(setting.option.argument);
    EXPECT_THAT(help, HasSubstr(line));
  }
  std::istringstream lines(help);
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 100U) << line;
  EXPECT_LT(help.find("What a word is"), help.find("--numerals"));
}

}  // namespace
}  // namespace quillomat
