// What a new user finds on the three windows: every control by its name, with its caption, its
// value, and whether it can be used.
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "app/program_image.h"
#include "support/program_fixture.h"
#include "support/user_home.h"

namespace quillomat {
namespace {

using testing::ElementsAre;

constexpr const char* kAnyCaption = nullptr;
constexpr const char* kAnyValue = nullptr;

struct ExpectedControl {
  const char* name;
  ControlKind kind;
  /// Of a check box, an option button, a label, a command or a frame.
  const char* caption;
  /// Of a text box, check box, option button or combo box.
  const char* value = "";
};

std::string CaptionOf(const Control& control) {
  if (const auto* box = control.As<CheckBox>()) return box->Caption();
  if (const auto* option = control.As<OptionButton>()) return option->Caption();
  return ValueOf(control);
}

bool HasValue(ControlKind kind) {
  return kind == ControlKind::kTextBox || kind == ControlKind::kCheckBox ||
         kind == ControlKind::kOptionButton || kind == ControlKind::kComboBox;
}

void ExpectControls(const Form& form, const std::vector<ExpectedControl>& expected) {
  std::vector<std::string> names;
  for (const ExpectedControl& row : expected) names.emplace_back(row.name);
  std::vector<std::string> found;
  for (const Control* control : form.Controls()) found.push_back(control->Name());
  EXPECT_THAT(found, testing::UnorderedElementsAreArray(names));
  for (const ExpectedControl& row : expected) {
    SCOPED_TRACE(row.name);
    const Control* control = form.Find(row.name);
    ASSERT_NE(control, nullptr);
    ASSERT_EQ(control->Kind(), row.kind);
    if (row.caption != kAnyCaption) {
      EXPECT_EQ(CaptionOf(*control), row.caption);
    }
    if (HasValue(row.kind) && row.value != kAnyValue) {
      EXPECT_EQ(ValueOf(*control), row.value);
    }
  }
}

class Windows : public testing::Test {
 protected:
  Windows() : program(desktop) { EXPECT_TRUE(program.Start()); }

  UserHome home;
  ScriptedDesktop desktop;
  Program program;
};

constexpr auto kText = ControlKind::kTextBox;
constexpr auto kCheck = ControlKind::kCheckBox;
constexpr auto kOption = ControlKind::kOptionButton;
constexpr auto kCombo = ControlKind::kComboBox;
constexpr auto kLabel = ControlKind::kLabel;
constexpr auto kCommand = ControlKind::kCommandButton;
constexpr auto kFrame = ControlKind::kFrame;

TEST_F(Windows, MainWindow) {
  const MainForm& frmMain = program.frmMain;
  EXPECT_EQ(frmMain.Name(), "frmMain");
  EXPECT_EQ(frmMain.Caption(), "Quillomat 7.07");
  EXPECT_TRUE(frmMain.Visible());
  ExpectControls(frmMain, {{"fraSource", kFrame, "Text to be counted"},
                           {"fraOutput", kFrame, "List"},
                           {"optOnClipboard", kOption, "Clipboard", "0"},
                           {"optInFile", kOption, "Single file", "0"},
                           {"optFolder", kOption, "Folder", "1"},
                           {"txbFile(0)", kText, kAnyCaption, ""},
                           {"txbFile(1)", kText, kAnyCaption, ""},
                           {"cmdFile(0)", kCommand, kAnyCaption},
                           {"cmdFile(1)", kCommand, kAnyCaption},
                           {"cmdClearFile(0)", kCommand, kAnyCaption},
                           {"cmdClearFile(1)", kCommand, kAnyCaption},
                           {"lblFilesize", kLabel, ""},
                           {"txbFolder", kText, kAnyCaption, ""},
                           {"cmdFolder", kCommand, kAnyCaption},
                           {"cmdClearFolder", kCommand, kAnyCaption},
                           {"chkIncludeSubfolders", kCheck, kAnyCaption, "0"},
                           {"lblFileExtensions", kLabel, kAnyCaption},
                           {"lblInclude", kLabel, "Only:"},
                           {"lblExclude", kLabel, "Not:"},
                           {"txbFileExtensions(0)", kText, kAnyCaption, ""},
                           {"txbFileExtensions(1)", kText, kAnyCaption, ""},
                           {"cmdListFiles", kCommand, "List files to be scanned"},
                           {"chkDisableOutputToFile", kCheck, kAnyCaption, "0"},
                           {"cboWordOrder", kCombo, kAnyCaption, "0"},
                           {"cboDisplayFormat", kCombo, kAnyCaption, "0"},
                           {"chkSuppressWords", kCheck, kAnyCaption, "0"},
                           {"cmdCountWords", kCommand, "Count word frequencies"},
                           {"lblTwirler", kLabel, " "},
                           {"txbOutput", kText, kAnyCaption, ""},
                           {"cmdClearOutput", kCommand, "Clear textbox"},
                           {"cmdCopyToClipboard", kCommand, "Copy to clipboard"},
                           {"cmdExport", kCommand, "Export..."},
                           {"Label1", kLabel, "Order of the words in the list:"},
                           {"Label2", kLabel, "What each line of the list shows:"},
                           {"lblCopyrightNotice", kLabel, kAnyCaption},
                           {"lblOrvandelSystems", kLabel, kAnyCaption},
                           {"lblOnlineDocumentation", kLabel, kAnyCaption},
                           {"lblNotice", kLabel, ""},
                           {"cmdNotice(0)", kCommand, ""},
                           {"cmdNotice(1)", kCommand, ""},
                           {"cmdDismissNotice", kCommand, kAnyCaption},
                           {"fraSummary", kFrame, ""},
                           {"lblNumberOfWords", kLabel, ""},
                           {"lblNumWordsExcluded", kLabel, ""},
                           {"lblNumOccurrences", kLabel, ""},
                           {"lblTotalNumOccurrences", kLabel, ""},
                           {"cmdClipboardViewer", kCommand, kAnyCaption},
                           {"cmdSetParameters", kCommand, "Set parameters"},
                           {"cmdSaveState", kCommand, "Save state"},
                           {"cmdHelp", kCommand, "Help"},
                           {"cmdLanguage", kCommand, "Deutsch"},
                           {"cmdQuit", kCommand, "Quit"}});
  EXPECT_THAT(frmMain.cboWordOrder.Items(), ElementsAre("by frequency", "alphabetical"));
  EXPECT_THAT(frmMain.cboDisplayFormat.Items(),
              ElementsAre("rank frequency word", "rank word frequency", "rank frequency",
                          "rank word", "frequency rank", "frequency word", "word rank",
                          "word frequency", "word", "word (+commas)", "Zipf data",
                          "word freq no.files", "word file-list", "word file-list (+freq)"));
}

TEST_F(Windows, ClipboardViewerIsNotThereWithoutItsProgramAndNumbersAndTheNoticeAreHidden) {
  std::vector<std::string> disabled;
  std::vector<std::string> hidden;
  for (const Control* control : program.frmMain.Controls()) {
    if (!control->Enabled()) disabled.push_back(control->Name());
    if (!control->Visible()) hidden.push_back(control->Name());
  }
  EXPECT_THAT(disabled, ElementsAre("cmdClipboardViewer"));
  EXPECT_THAT(hidden, ElementsAre("lblNotice", "cmdNotice(0)", "cmdNotice(1)", "cmdDismissNotice",
                                  "lblNumberOfWords", "lblNumWordsExcluded", "lblNumOccurrences",
                                  "lblTotalNumOccurrences", "cmdClipboardViewer"));
}

TEST_F(Windows, Panel) {
  const ParamsForm& frmParams = program.frmParams;
  EXPECT_EQ(frmParams.Name(), "frmParams");
  EXPECT_EQ(frmParams.Caption(), "QLAV: Set parameters");
  EXPECT_FALSE(frmParams.Visible());
  ExpectControls(
      frmParams,
      {{"lblOnThisPage", kLabel,
        "When text is being scanned you can ignore some words and you can fine tune how the text "
        "is scanned by checking the boxes below.  Also you can specify words to be ignored or "
        "words only to be counted by specifying files containing these words."},
       {"lblAllowWords", kLabel, "Allow 'words' with:"},
       {"chkAllowWordsWithHyphens", kCheck, "hyphens -", "1"},
       {"chkAllowWordsWithApostrophes", kCheck, "apostrophes '", "0"},
       {"chkAllowWordsWithUnderscores", kCheck, "underscores _", "0"},
       {"chkAllowWordsWithColons", kCheck, "colons :", "0"},
       {"chkAllowWordsWithBackslashes", kCheck, "backslashes \\", "0"},
       {"chkAllowWordsWithForwardslashes", kCheck, "forward slashes /", "0"},
       {"chkAllowWordsWithParentheses", kCheck, "parentheses ( )", "0"},
       {"chkAllowWordsWithPeriods", kCheck, "periods .", "0"},
       {"chkAllowWordsWithCommas", kCheck, "commas ,", "0"},
       {"chkAllowWordsWithAtSigns", kCheck, "at-signs @", "0"},
       {"chkAllowWordsWithNumerals", kCheck, "numerals 123", "0"},
       {"chkCaseSignificant", kCheck, "Upper/lower case significant", "0"},
       {"chkDropFinalS", kCheck, "Drop final 's' unless 'ss' or vowel+'s'", "0"},
       {"lblLetters", kLabel, "Letters:"},
       {"cboLetters", kCombo, kAnyCaption, "0"},
       {"lblEncoding", kLabel, "Encoding:"},
       {"cboEncoding", kCombo, kAnyCaption, "0"},
       {"chkFoldAccents", kCheck, "Accents make no difference", "1"},
       {"chkAllowCommentMarkers", kCheck, "Allow comment markers", "0"},
       {"fraIgnoreWords", kFrame, " Ignore words "},
       {"chkIgnoreShortWords", kCheck, "with fewer than", "0"},
       {"lblShortWordSize", kLabel, "characters"},
       {"chkIgnoreInfrequentWords", kCheck, "with fewer than", "0"},
       {"lblThresholdFrequency", kLabel, "occurrences"},
       {"lblLongWords", kLabel, "with more than"},
       {"lblLongWordSize", kLabel, "characters"},
       {"chkIgnoreRepetitions", kCheck, "which are repetitions of a single letter", "1"},
       {"chkIgnoreRomNum40", kCheck, "which are Roman numerals < XL", "1"},
       {"chkIgnoreNoVowelOrY", kCheck, "which lack a vowel or 'y'", "1"},
       {"chkOutputWithCommas", kCheck, "Include commas in output file", "0"},
       {"chkWarnOnOverwrite", kCheck, "Warn on overwrite of output file", "1"},
       {"chkSaveStateOnQuit", kCheck, "Save state when quitting", "1"},
       {"chkUseLog10", kCheck, "Use log base 10 for Zipf data", "1"},
       {"cboShortWordSize", kCombo, kAnyCaption, "1"},
       {"cboLongWordSize", kCombo, kAnyCaption, "3"},
       {"cboThresholdFrequency", kCombo, kAnyCaption, "0"},
       {"lblStartComment", kLabel, "Start-comment:"},
       {"lblEndComment", kLabel, "End-comment:"},
       {"lblCommentPair(0)", kLabel, "1st pair:"},
       {"lblCommentPair(1)", kLabel, "2nd pair:"},
       {"txbStartComment(0)", kText, kAnyCaption, "/*"},
       {"txbEndComment(0)", kText, kAnyCaption, "*/"},
       {"txbStartComment(1)", kText, kAnyCaption, "//"},
       {"txbEndComment(1)", kText, kAnyCaption, ""},
       {"cmdSelectWordsFile(0)", kCommand, "Words-to-ignore file"},
       {"cmdSelectWordsFile(1)", kCommand, "Count-only words file"},
       {"cmdCommonWords", kCommand, "Common words"},
       {"txbWordsFile(0)", kText, kAnyCaption, ""},
       {"txbWordsFile(1)", kText, kAnyCaption, ""},
       {"cmdClearWordsFile(0)", kCommand, kAnyCaption},
       {"cmdClearWordsFile(1)", kCommand, kAnyCaption},
       {"lblWordsToIgnoreOrCount(0)", kLabel, "Extra words to ignore:"},
       {"lblWordsToIgnoreOrCount(1)", kLabel, "Extra count-only words:"},
       {"txbWordsToIgnoreOrCount(0)", kText, kAnyCaption, ""},
       {"txbWordsToIgnoreOrCount(1)", kText, kAnyCaption, ""},
       {"cmdClearWordsToIgnoreOrCount(0)", kCommand, kAnyCaption},
       {"cmdClearWordsToIgnoreOrCount(1)", kCommand, kAnyCaption},
       {"lblTryIt", kLabel, "Try it:"},
       {"txbTryIt", kText, kAnyCaption, kAnyValue},
       {"lblTried", kLabel, "What becomes of it:"},
       {"txbTried", kText, kAnyCaption, ""},
       {"cmdClearCheckboxes(0)", kCommand, "Clear checkboxes"},
       {"cmdClearCheckboxes(1)", kCommand, "Set checkboxes"},
       {"cmdSaveLoadState(0)", kCommand, "Save state to file"},
       {"cmdSaveLoadState(1)", kCommand, "Load state from file"},
       {"lblState", kLabel, ""},
       {"txbStateFile", kText, kAnyCaption, ""},
       {"cmdRestoreDefaults", kCommand, "Restore defaults"},
       {"cmdInitialize", kCommand, "Reinitialize"},
       {"cmdClose", kCommand, "Close"}});
  EXPECT_THAT(frmParams.cboShortWordSize.Items(),
              ElementsAre("2", "3", "4", "5", "6", "7", "8", "9"));
  EXPECT_THAT(frmParams.cboLongWordSize.Items(),
              ElementsAre("20", "30", "40", "50", "60", "70", "80", "90", "100"));
  EXPECT_THAT(frmParams.cboThresholdFrequency.Items(),
              ElementsAre("2", "3", "4", "5", "6", "7", "8", "9"));
}

TEST_F(Windows, HelpWindow) {
  const HelpForm& frmHelp = program.frmHelp;
  EXPECT_EQ(frmHelp.Name(), "frmHelp");
  EXPECT_EQ(frmHelp.Caption(), "QLAV Help");
  EXPECT_FALSE(frmHelp.Visible());
  ExpectControls(
      frmHelp, {{"txbHelpScreen", kText, kAnyCaption, kAnyValue}, {"cmdClose", kCommand, "Close"}});
  EXPECT_TRUE(frmHelp.txbHelpScreen.Text().starts_with(
      "This software scans a file, a set of files, or  text"));
}

}  // namespace
}  // namespace quillomat
