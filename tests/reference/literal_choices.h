// What a user chooses on the windows, as far as counting and listing read it. The members bear the
// names of the controls; a check box is 0, 1 or 2 (grey), and only 1 is "checked". The values here
// are those of a first start.
#pragma once

#include <array>
#include <string>

namespace quillomat::reference {

struct LiteralChoices {
  int chkAllowWordsWithHyphens = 1;
  int chkAllowWordsWithApostrophes = 0;
  int chkAllowWordsWithUnderscores = 0;
  int chkAllowWordsWithColons = 0;
  int chkAllowWordsWithBackslashes = 0;
  int chkAllowWordsWithForwardslashes = 0;
  int chkAllowWordsWithParentheses = 0;
  int chkAllowWordsWithPeriods = 0;
  int chkAllowWordsWithCommas = 0;
  int chkAllowWordsWithAtSigns = 0;
  int chkAllowWordsWithNumerals = 0;

  int chkCaseSignificant = 0;
  int chkDropFinalS = 0;

  int chkAllowCommentMarkers = 0;
  std::array<std::string, 2> txbStartComment = {"/*", "//"};
  std::array<std::string, 2> txbEndComment = {"*/", ""};

  int cboLetters = 0;  // list index: 0 the western letters, 1 those of all languages
  int chkFoldAccents = 1;

  int chkIgnoreShortWords = 0;
  int chkIgnoreInfrequentWords = 0;
  int chkIgnoreRepetitions = 1;
  int chkIgnoreRomNum40 = 1;
  int chkIgnoreNoVowelOrY = 1;
  int cboShortWordSize = 1;       // list index: 0 stands for 2 characters
  int cboThresholdFrequency = 0;  // list index: 0 stands for 2 occurrences
  int longWordSize = 50;          // the number that the selected item of cboLongWordSize shows

  int chkUseLog10 = 1;
  int chkOutputWithCommas = 0;

  int chkSuppressWords = 0;
  std::array<std::string, 2> txbWordsToIgnoreOrCount;  // 0: words to ignore, 1: count-only words

  bool optFolder = true;
  std::string txbFolder;
  std::string txbFile0;  // the path of the file being scanned
};

}  // namespace quillomat::reference
