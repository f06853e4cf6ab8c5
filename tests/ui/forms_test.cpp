#include <gmock/gmock.h>
#include <memory>
#include <set>
#include <string>

#include "ui/help_form.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> NamesOf(std::span<CheckBox* const> boxes) {
  std::vector<std::string> names;
  for (const CheckBox* box : boxes) names.push_back(box->Name());
  return names;
}

/// What the control says, whatever its kind.
std::string CaptionOf(const Form& form, std::string_view name) {
  const auto* captioned = dynamic_cast<CaptionedControl*>(form.Find(name));
  return captioned == nullptr ? "no such control" : captioned->Caption();
}

void ExpectNamesAreUnique(const Form& form) {
  std::set<std::string> names;
  for (const Control* control : form.Controls()) {
    EXPECT_TRUE(names.insert(control->Name()).second) << control->Name();
    EXPECT_EQ(form.Find(control->Name()), control);
  }
}

TEST(MainFormTest, ControlsAreFoundByTheirNames) {
  const MainForm form;
  EXPECT_EQ(form.Name(), "frmMain");
  ExpectNamesAreUnique(form);
  for (const char* name : {"txbFile(0)", "txbFile(1)", "cmdFile(0)", "cmdClearFile(1)",
                           "txbFileExtensions(1)", "cboWordOrder", "cboDisplayFormat", "txbOutput",
                           "lblTwirler", "cmdLanguage", "lblFilesize", "fraSummary"}) {
    EXPECT_NE(form.Find(name), nullptr) << name;
  }
}

TEST(MainFormTest, CaptionsAreTheRequiredOnes) {
  const MainForm form;
  EXPECT_EQ(CaptionOf(form, "optOnClipboard"), "Clipboard");
  EXPECT_EQ(CaptionOf(form, "optInFile"), "Single file");
  EXPECT_EQ(CaptionOf(form, "optFolder"), "Folder");
  EXPECT_EQ(CaptionOf(form, "cmdCountWords"), "Count word frequencies");
  EXPECT_EQ(CaptionOf(form, "lblInclude"), "Only:");
  EXPECT_EQ(CaptionOf(form, "lblExclude"), "Not:");
  EXPECT_EQ(CaptionOf(form, "cmdListFiles"), "List files to be scanned");
  EXPECT_EQ(CaptionOf(form, "cmdClearOutput"), "Clear textbox");
  EXPECT_EQ(CaptionOf(form, "cmdCopyToClipboard"), "Copy to clipboard");
  EXPECT_EQ(CaptionOf(form, "cmdSaveState"), "Save state");
  EXPECT_EQ(CaptionOf(form, "cmdQuit"), "Quit");
  EXPECT_EQ(form.chkSuppressWords.ToolTip(), "Check this box for faster processing.");
}

TEST(MainFormTest, SourcesExcludeEachOther) {
  MainForm form;
  form.optFolder.SetValue(true);
  form.optOnClipboard.PerformClick();
  EXPECT_TRUE(form.optOnClipboard.Value());
  EXPECT_FALSE(form.optFolder.Value());
}

TEST(ParamsFormTest, ControlsAreFoundByTheirNames) {
  const ParamsForm form;
  EXPECT_EQ(form.Name(), "frmParams");
  EXPECT_EQ(form.Caption(), "QLAV: Set parameters");
  ExpectNamesAreUnique(form);
  for (const char* name :
       {"txbStartComment(0)", "txbEndComment(1)", "txbWordsFile(1)", "txbWordsToIgnoreOrCount(0)",
        "cmdSelectWordsFile(1)", "cmdClearWordsFile(0)", "cmdClearWordsToIgnoreOrCount(1)",
        "cmdClearCheckboxes(1)", "cmdSaveLoadState(0)", "txbStateFile", "lblState",
        "lblOnThisPage"}) {
    EXPECT_NE(form.Find(name), nullptr) << name;
  }
}

TEST(ParamsFormTest, CaptionsAreTheRequiredOnes) {
  const ParamsForm form;
  EXPECT_EQ(CaptionOf(form, "chkAllowWordsWithBackslashes"), "backslashes \\");
  EXPECT_EQ(CaptionOf(form, "chkAllowWordsWithParentheses"), "parentheses ( )");
  EXPECT_EQ(CaptionOf(form, "chkDropFinalS"), "Drop final 's' unless 'ss' or vowel+'s'");
  EXPECT_EQ(CaptionOf(form, "chkIgnoreRomNum40"), "which are Roman numerals < XL");
  EXPECT_EQ(CaptionOf(form, "fraIgnoreWords"), " Ignore words ");
  EXPECT_EQ(CaptionOf(form, "cmdSelectWordsFile(1)"), "Count-only words file");
  EXPECT_EQ(CaptionOf(form, "cmdInitialize"), "Reinitialize");
  EXPECT_EQ(CaptionOf(form, "cmdClearCheckboxes(0)"), "Clear checkboxes");
  EXPECT_EQ(CaptionOf(form, "cmdSaveLoadState(1)"), "Load state from file");
}

TEST(ParamsFormTest, AllowBoxesAreInTheOrderOfTheFlags) {
  ParamsForm form;
  EXPECT_THAT(NamesOf(form.AllowCheckBoxes()),
              ElementsAre("chkAllowWordsWithHyphens", "chkAllowWordsWithApostrophes",
                          "chkAllowWordsWithUnderscores", "chkAllowWordsWithColons",
                          "chkAllowWordsWithBackslashes", "chkAllowWordsWithForwardslashes",
                          "chkAllowWordsWithParentheses", "chkAllowWordsWithPeriods",
                          "chkAllowWordsWithCommas", "chkAllowWordsWithAtSigns",
                          "chkAllowWordsWithNumerals"));
}

TEST(ParamsFormTest, NumberListsHoldTheirNumbers) {
  ParamsForm form;
  form.FillCombos();
  EXPECT_THAT(form.cboShortWordSize.Items(), ElementsAre("2", "3", "4", "5", "6", "7", "8", "9"));
  EXPECT_THAT(form.cboLongWordSize.Items(),
              ElementsAre("20", "30", "40", "50", "60", "70", "80", "90", "100"));
  EXPECT_THAT(form.cboThresholdFrequency.Items(),
              ElementsAre("2", "3", "4", "5", "6", "7", "8", "9"));
  EXPECT_EQ(form.cboLongWordSize.ListIndex(), -1);
}

TEST(ParamsFormTest, NothingIsSetBeforeTheDefaultsAre) {
  ParamsForm form;
  for (const Control* control : form.Controls()) {
    const auto* box = control->As<CheckBox>();
    if (box == nullptr) continue;
    EXPECT_EQ(box->Value(), CheckState::kUnchecked) << box->Name();
  }
  EXPECT_EQ(form.txbStartComment[0].Text(), "");
}

TEST(HelpFormTest, HoldsTheHelpText) {
  const HelpForm form;
  EXPECT_EQ(form.Name(), "frmHelp");
  EXPECT_EQ(form.Caption(), "QLAV Help");
  EXPECT_EQ(CaptionOf(form, "cmdClose"), "Close");
  EXPECT_NE(form.Find("txbHelpScreen"), nullptr);
}

}  // namespace
}  // namespace quillomat
