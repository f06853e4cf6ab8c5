// The controls of the panel "Set parameters". They are the settings themselves: nothing else holds
// them. All boxes start unchecked and all texts empty; the defaults are set at start-up.
#pragma once

#include <array>
#include <cstddef>

#include "ui/controls.h"
#include "ui/form.h"

namespace quillomat {

class ParamsForm final : public Form {
 public:
  ParamsForm();

  static constexpr std::size_t kAllowFlagCount = 11;

  /// The boxes that allow a sign in words, in the order of the allow flags: hyphens to numerals.
  [[nodiscard]] std::array<CheckBox*, kAllowFlagCount> AllowCheckBoxes();

  /// Fills the three lists of numbers, and those of letters and encodings; called once, at
  /// start-up. None is selected then.
  void FillCombos();

  Label lblOnThisPage{*this, "lblOnThisPage"};

  // What may stand in a word.
  Label lblAllowWords{*this, "lblAllowWords", "Allow 'words' with:"};
  CheckBox chkAllowWordsWithHyphens{*this, "chkAllowWordsWithHyphens", "hyphens -"};
  CheckBox chkAllowWordsWithApostrophes{*this, "chkAllowWordsWithApostrophes", "apostrophes '"};
  CheckBox chkAllowWordsWithUnderscores{*this, "chkAllowWordsWithUnderscores", "underscores _"};
  CheckBox chkAllowWordsWithColons{*this, "chkAllowWordsWithColons", "colons :"};
  CheckBox chkAllowWordsWithBackslashes{*this, "chkAllowWordsWithBackslashes", "backslashes \\"};
  CheckBox chkAllowWordsWithForwardslashes{*this, "chkAllowWordsWithForwardslashes",
                                           "forward slashes /"};
  CheckBox chkAllowWordsWithParentheses{*this, "chkAllowWordsWithParentheses", "parentheses ( )"};
  CheckBox chkAllowWordsWithPeriods{*this, "chkAllowWordsWithPeriods", "periods ."};
  CheckBox chkAllowWordsWithCommas{*this, "chkAllowWordsWithCommas", "commas ,"};
  CheckBox chkAllowWordsWithAtSigns{*this, "chkAllowWordsWithAtSigns", "at-signs @"};
  CheckBox chkAllowWordsWithNumerals{*this, "chkAllowWordsWithNumerals", "numerals 123"};
  CheckBox chkCaseSignificant{*this, "chkCaseSignificant", "Upper/lower case significant"};
  CheckBox chkDropFinalS{*this, "chkDropFinalS", "Drop final 's' unless 'ss' or vowel+'s'"};
  Label lblLetters{*this, "lblLetters", "Letters:"};
  ComboBox cboLetters{*this, "cboLetters"};
  Label lblEncoding{*this, "lblEncoding", "Encoding:"};
  ComboBox cboEncoding{*this, "cboEncoding"};
  CheckBox chkFoldAccents{*this, "chkFoldAccents", "Accents make no difference"};

  // Which words are left out of the list.
  Frame fraIgnoreWords{*this, "fraIgnoreWords", " Ignore words "};
  CheckBox chkIgnoreShortWords{*this, "chkIgnoreShortWords", "with fewer than"};
  ComboBox cboShortWordSize{*this, "cboShortWordSize"};
  Label lblShortWordSize{*this, "lblShortWordSize", "characters"};
  Label lblLongWords{*this, "lblLongWords", "with more than"};
  ComboBox cboLongWordSize{*this, "cboLongWordSize"};
  Label lblLongWordSize{*this, "lblLongWordSize", "characters"};
  CheckBox chkIgnoreInfrequentWords{*this, "chkIgnoreInfrequentWords", "with fewer than"};
  ComboBox cboThresholdFrequency{*this, "cboThresholdFrequency"};
  Label lblThresholdFrequency{*this, "lblThresholdFrequency", "occurrences"};
  CheckBox chkIgnoreRepetitions{*this, "chkIgnoreRepetitions",
                                "which are repetitions of a single letter"};
  CheckBox chkIgnoreRomNum40{*this, "chkIgnoreRomNum40", "which are Roman numerals < XL"};
  CheckBox chkIgnoreNoVowelOrY{*this, "chkIgnoreNoVowelOrY", "which lack a vowel or 'y'"};

  // Comments: 0 the first pair of markers, 1 the second.
  CheckBox chkAllowCommentMarkers{*this, "chkAllowCommentMarkers", "Allow comment markers"};
  Label lblStartComment{*this, "lblStartComment", "Start-comment:"};
  Label lblEndComment{*this, "lblEndComment", "End-comment:"};
  std::array<Label, 2> lblCommentPair{Label{*this, {"lblCommentPair", 0}, "1st pair:"},
                                      Label{*this, {"lblCommentPair", 1}, "2nd pair:"}};
  std::array<TextBox, 2> txbStartComment{TextBox{*this, {"txbStartComment", 0}},
                                         TextBox{*this, {"txbStartComment", 1}}};
  std::array<TextBox, 2> txbEndComment{TextBox{*this, {"txbEndComment", 0}},
                                       TextBox{*this, {"txbEndComment", 1}}};

  // Word lists: 0 words to ignore, 1 count-only words.
  std::array<CommandButton, 2> cmdSelectWordsFile{
      CommandButton{*this, {"cmdSelectWordsFile", 0}, "Words-to-ignore file"},
      CommandButton{*this, {"cmdSelectWordsFile", 1}, "Count-only words file"}};
  /// A face offers the lists that come with the program (app/count/common_words.h).
  CommandButton cmdCommonWords{*this, "cmdCommonWords", "Common words"};
  std::array<TextBox, 2> txbWordsFile{TextBox{*this, {"txbWordsFile", 0}},
                                      TextBox{*this, {"txbWordsFile", 1}}};
  std::array<CommandButton, 2> cmdClearWordsFile{
      CommandButton{*this, {"cmdClearWordsFile", 0}, "Clear"},
      CommandButton{*this, {"cmdClearWordsFile", 1}, "Clear"}};
  std::array<Label, 2> lblWordsToIgnoreOrCount{
      Label{*this, {"lblWordsToIgnoreOrCount", 0}, "Extra words to ignore:"},
      Label{*this, {"lblWordsToIgnoreOrCount", 1}, "Extra count-only words:"}};
  std::array<TextBox, 2> txbWordsToIgnoreOrCount{TextBox{*this, {"txbWordsToIgnoreOrCount", 0}},
                                                 TextBox{*this, {"txbWordsToIgnoreOrCount", 1}}};
  std::array<CommandButton, 2> cmdClearWordsToIgnoreOrCount{
      CommandButton{*this, {"cmdClearWordsToIgnoreOrCount", 0}, "Clear"},
      CommandButton{*this, {"cmdClearWordsToIgnoreOrCount", 1}, "Clear"}};

  // A line of the user's own, and what the settings above make of it.
  Label lblTryIt{*this, "lblTryIt", "Try it:"};
  TextBox txbTryIt{*this, "txbTryIt"};
  Label lblTried{*this, "lblTried", "What becomes of it:"};
  TextBox txbTried{*this, "txbTried"};

  // How lists are made.
  CheckBox chkOutputWithCommas{*this, "chkOutputWithCommas", "Include commas in output file"};
  CheckBox chkUseLog10{*this, "chkUseLog10", "Use log base 10 for Zipf data"};
  CheckBox chkWarnOnOverwrite{*this, "chkWarnOnOverwrite", "Warn on overwrite of output file"};
  CheckBox chkSaveStateOnQuit{*this, "chkSaveStateOnQuit", "Save state when quitting"};

  // All settings at once: 0 clear or save, 1 set or load.
  std::array<CommandButton, 2> cmdClearCheckboxes{
      CommandButton{*this, {"cmdClearCheckboxes", 0}, "Clear checkboxes"},
      CommandButton{*this, {"cmdClearCheckboxes", 1}, "Set checkboxes"}};
  std::array<CommandButton, 2> cmdSaveLoadState{
      CommandButton{*this, {"cmdSaveLoadState", 0}, "Save state to file"},
      CommandButton{*this, {"cmdSaveLoadState", 1}, "Load state from file"}};
  Label lblState{*this, "lblState"};
  TextBox txbStateFile{*this, "txbStateFile"};
  CommandButton cmdRestoreDefaults{*this, "cmdRestoreDefaults", "Restore defaults"};
  CommandButton cmdInitialize{*this, "cmdInitialize", "Reinitialize"};
  CommandButton cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace quillomat
