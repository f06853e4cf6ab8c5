// The table of settings against the windows, and the orders in which it is gone through.
#include "app/settings_table.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <set>
#include <string>
#include <vector>

#include "app/program_image.h"
#include "app/setting_values.h"
#include "support/program_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::UnorderedElementsAreArray;

/// The names in the order in which the controls first change.
class ChangeLog {
 public:
  void Watch(Control& control) {
    control.Changed.Connect([this, &control] { names_.push_back(control.Name()); });
  }
  void Forget() { names_.clear(); }
  [[nodiscard]] const std::vector<std::string>& Names() const { return names_; }

 private:
  std::vector<std::string> names_;
};

bool HoldsASetting(const Control& control) {
  return control.Kind() == ControlKind::kCheckBox || control.Kind() == ControlKind::kComboBox ||
         control.Kind() == ControlKind::kTextBox;
}

class SettingsTable : public ProgramFixture {
 protected:
  Control& Of(const Setting& setting) { return ControlOf(setting, Main(), Panel()); }

  static std::vector<std::string> NamesOf(SettingWindow window) {
    std::vector<std::string> names;
    for (const Setting& setting : AllSettings()) {
      if (setting.window == window) names.emplace_back(setting.control);
    }
    return names;
  }

  /// What of a window holds a setting, except for boxes that show something else.
  static std::vector<std::string> Holders(const Form& form,
                                          const std::set<std::string>& noSettings) {
    std::vector<std::string> names;
    for (const Control* control : form.Controls()) {
      const std::string& name = control->Name();
      if (HoldsASetting(*control) && !noSettings.contains(name)) names.push_back(name);
    }
    return names;
  }

  /// The check boxes that the program is started with and that `change` changes, in order.
  template <typename Change>
  std::vector<std::string> OrderOf(const Change& change) {
    for (const Setting& setting : AllSettings()) log_.Watch(Of(setting));
    log_.Forget();
    change();
    return log_.Names();
  }

 private:
  ChangeLog log_;
};

TEST_F(SettingsTable, EveryControlThatHoldsASettingStandsInItOnce) {
  EXPECT_THAT(NamesOf(SettingWindow::kPanel),
              UnorderedElementsAreArray(Holders(Panel(), {"txbStateFile", "txbTried"})));
  EXPECT_THAT(NamesOf(SettingWindow::kMain),
              UnorderedElementsAreArray(Holders(Main(), {"txbOutput"})));
}

TEST_F(SettingsTable, EveryDefaultFitsItsControlAndIsWhatAFirstStartShows) {
  for (const Setting& setting : AllSettings()) {
    SCOPED_TRACE(setting.control);
    Control& control = Of(setting);
    EXPECT_EQ(std::holds_alternative<std::string_view>(setting.initial),
              control.Kind() == ControlKind::kTextBox);
    EXPECT_TRUE(HasDefault(setting, control));
  }
}

TEST_F(SettingsTable, WhatDiffersFromTheDefaultIsSeen) {
  for (const Setting& setting : AllSettings()) {
    SCOPED_TRACE(setting.control);
    Control& control = Of(setting);
    if (auto* box = control.As<CheckBox>()) box->SetValue(CheckState::kGrayed);
    if (auto* combo = control.As<ComboBox>()) combo->SetListIndex(-1);
    if (auto* text = control.As<TextBox>()) text->SetText("other");
    EXPECT_FALSE(HasDefault(setting, control));
    SetToDefault(setting, control);
    EXPECT_TRUE(HasDefault(setting, control));
  }
}

TEST_F(SettingsTable, DefaultsAreSetInTheOrderOfTheTable) {
  for (const Setting& setting : AllSettings()) {
    if (setting.window != SettingWindow::kPanel) continue;
    if (auto* box = Of(setting).As<CheckBox>()) box->SetValue(CheckState::kGrayed);
    if (auto* combo = Of(setting).As<ComboBox>())
      combo->SetListIndex(static_cast<int>(combo->Items().size()) - 1);
    if (auto* text = Of(setting).As<TextBox>()) text->SetText("other");
  }
  EXPECT_THAT(
      OrderOf([this] { Panel().cmdRestoreDefaults.PerformClick(); }),
      ElementsAre("chkCaseSignificant", "chkIgnoreShortWords", "chkIgnoreInfrequentWords",
                  "chkIgnoreRepetitions", "chkIgnoreRomNum40", "chkIgnoreNoVowelOrY",
                  "chkAllowWordsWithHyphens", "chkAllowWordsWithApostrophes",
                  "chkAllowWordsWithUnderscores", "chkAllowWordsWithColons",
                  "chkAllowWordsWithBackslashes", "chkAllowWordsWithForwardslashes",
                  "chkAllowWordsWithParentheses", "chkAllowWordsWithPeriods",
                  "chkAllowWordsWithCommas", "chkAllowWordsWithAtSigns",
                  "chkAllowWordsWithNumerals", "chkDropFinalS", "chkFoldAccents",
                  "chkOutputWithCommas", "chkUseLog10", "chkAllowCommentMarkers",
                  "chkWarnOnOverwrite", "chkSaveStateOnQuit", "txbStartComment(0)",
                  "txbEndComment(0)", "txbStartComment(1)", "txbEndComment(1)", "cboShortWordSize",
                  "cboLongWordSize", "cboThresholdFrequency", "cboLetters", "cboEncoding"))
      << "the typed lists and the words files are kept";
}

TEST_F(SettingsTable, BoxesAreClearedInAnOrderOfTheirOwn) {
  Panel().cmdClearCheckboxes[1].PerformClick();
  const std::vector<std::string> order(kClearingOrder.begin(), kClearingOrder.end());
  EXPECT_THAT(OrderOf([this] { Panel().cmdClearCheckboxes[0].PerformClick(); }),
              ElementsAreArray(order));
  EXPECT_THAT(order, ElementsAre("chkAllowWordsWithHyphens", "chkAllowWordsWithApostrophes",
                                 "chkAllowWordsWithUnderscores", "chkAllowWordsWithColons",
                                 "chkAllowWordsWithBackslashes", "chkAllowWordsWithForwardslashes",
                                 "chkAllowWordsWithParentheses", "chkAllowWordsWithPeriods",
                                 "chkAllowWordsWithCommas", "chkAllowWordsWithAtSigns",
                                 "chkAllowWordsWithNumerals", "chkCaseSignificant", "chkDropFinalS",
                                 "chkIgnoreInfrequentWords", "chkIgnoreRepetitions",
                                 "chkIgnoreRomNum40", "chkIgnoreNoVowelOrY", "chkIgnoreShortWords",
                                 "chkOutputWithCommas", "chkUseLog10", "chkAllowCommentMarkers",
                                 "chkWarnOnOverwrite", "chkSaveStateOnQuit", "chkFoldAccents"));
}

TEST_F(SettingsTable, BoxThatIsNewIsClearedLast) {
  CheckBox added(Panel(), "chkAdded", "added");
  EXPECT_EQ(BoxesInClearingOrder(Panel()).back(), &added);
  EXPECT_EQ(BoxesInClearingOrder(Panel()).size(), kClearingOrder.size() + 1);
}

TEST_F(SettingsTable, ScanningParametersAskBeforeTheTextIsReadAnew) {
  const std::set<std::string_view> scanning = {"chkAllowWordsWithHyphens",
                                               "chkAllowWordsWithApostrophes",
                                               "chkAllowWordsWithUnderscores",
                                               "chkAllowWordsWithColons",
                                               "chkAllowWordsWithBackslashes",
                                               "chkAllowWordsWithForwardslashes",
                                               "chkAllowWordsWithParentheses",
                                               "chkAllowWordsWithPeriods",
                                               "chkAllowWordsWithCommas",
                                               "chkAllowWordsWithAtSigns",
                                               "chkAllowWordsWithNumerals",
                                               "chkCaseSignificant",
                                               "chkDropFinalS",
                                               "chkFoldAccents",
                                               "chkAllowCommentMarkers"};
  for (CheckBox* box : BoxesInClearingOrder(Panel())) {
    CountClipboard("cat");
    desktop.ForgetQuestions();
    if (scanning.contains(box->Name())) desktop.Answer(MessageAnswer::kNo);
    box->PerformClick();
    EXPECT_EQ(desktop.Messages().size(), scanning.count(box->Name())) << box->Name();
  }
}

TEST_F(SettingsTable, ListingParametersMoveTheFocusToClose) {
  const std::set<std::string_view> listing = {"chkIgnoreShortWords",  "chkIgnoreInfrequentWords",
                                              "chkIgnoreRepetitions", "chkIgnoreRomNum40",
                                              "chkIgnoreNoVowelOrY",  "cboShortWordSize",
                                              "cboLongWordSize",      "cboThresholdFrequency"};
  for (const Setting& setting : AllSettings()) {
    if (setting.window != SettingWindow::kPanel) continue;
    Panel().SetFocus(Panel().cmdInitialize);
    Control& control = Of(setting);
    if (auto* box = control.As<CheckBox>()) box->PerformClick();
    if (auto* combo = control.As<ComboBox>())
      combo->SetListIndex(std::min(4, static_cast<int>(combo->Items().size()) - 1));
    EXPECT_EQ(Panel().Focused() == &Panel().cmdClose, listing.contains(setting.control))
        << setting.control;
  }
}

TEST_F(SettingsTable, EveryOptionHasANameOfItsOwnAndHelp) {
  std::set<std::string_view> names;
  for (const Setting& setting : AllSettings()) {
    const SettingOption& option = setting.option;
    SCOPED_TRACE(setting.control);
    if (option.kind == OptionKind::kNone) continue;
    EXPECT_TRUE(option.name.starts_with("--"));
    EXPECT_TRUE(names.insert(option.name).second);
    EXPECT_NE(option.help, "");
    EXPECT_EQ(option.kind == OptionKind::kSwitch, option.argument.empty());
    if (option.kind == OptionKind::kSwitch) {
      EXPECT_TRUE(names.insert(option.opposite).second);
    }
    if (option.kind == OptionKind::kChoice) {
      EXPECT_EQ(option.choices.size(), Of(setting).As<ComboBox>()->Items().size());
    }
  }
}

TEST_F(SettingsTable, WhatIsSwitchedByABoxNamesOne) {
  for (const Setting& setting : AllSettings()) {
    if (setting.switchedBy.empty()) continue;
    const Control* const box = Panel().Find(setting.switchedBy);
    ASSERT_NE(box, nullptr) << setting.control;
    EXPECT_EQ(box->Kind(), ControlKind::kCheckBox) << setting.control;
  }
}

TEST_F(SettingsTable, SettingIsFoundByItsControl) {
  ASSERT_NE(FindSetting(AllSettings(), "txbFile(1)"), nullptr);
  EXPECT_EQ(FindSetting(AllSettings(), "txbFile(1)")->option.name, "--output");
  EXPECT_EQ(FindSetting(AllSettings(), "txbOutput"), nullptr);
}

TEST_F(SettingsTable, RowWithoutAControlIsNoRow) {
  EXPECT_THROW(static_cast<void>(ControlOf({.control = "chkNothing"}, Main(), Panel())),
               std::logic_error);
}

}  // namespace
}  // namespace quillomat
