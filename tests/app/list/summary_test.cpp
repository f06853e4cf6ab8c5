// The labels below the list.
#include "app/list/summary.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillomat {
namespace {

class Summary : public testing::Test {
 protected:
  Summary() {
    words.WordsRead = 12'345;
    words.totals.NumIncludedWords = 321;
    words.totals.NumExcludedWords = 45;
    words.totals.TotalIncludedCount = 9'876;
  }

  /// A count of `given` count-only words of which `found` were found.
  void CountOnly(int given, std::int32_t found) {
    inForce.settings.CountOnlyMode = true;
    inForce.lists.CountOnlyList = WordList({"first"});
    inForce.lists.ExtraCountOnlyList =
        WordList(std::vector<std::string>(static_cast<std::size_t>(given - 1), "other"));
    words.totals.NumIncludedWords = found;
  }

  void Show() { ShowSummary(frmMain, words, inForce, ","); }

  MainForm frmMain;
  CurrentWords words;
  InForce inForce;
};

TEST_F(Summary, NumbersAreGroupedAndRightJustified) {
  Show();
  EXPECT_EQ(frmMain.lblNumberOfWords.Caption(), "Number of words in this list:    321");
  EXPECT_EQ(frmMain.lblNumWordsExcluded.Caption(), "Number of words excluded:     45");
  EXPECT_EQ(frmMain.lblNumOccurrences.Caption(),
            "Number of instances of words in this list:  9,876");
  EXPECT_EQ(frmMain.lblTotalNumOccurrences.Caption(), "Total number of instances of words: 12,345");
}

TEST_F(Summary, LabelsBecomeVisibleAndNoticesHide) {
  ConcealNumWords(frmMain, true);
  Show();
  EXPECT_TRUE(frmMain.lblNumberOfWords.Visible());
  EXPECT_TRUE(frmMain.lblNumWordsExcluded.Visible());
  EXPECT_TRUE(frmMain.lblNumOccurrences.Visible());
  EXPECT_TRUE(frmMain.lblTotalNumOccurrences.Visible());
  EXPECT_FALSE(frmMain.lblCopyrightNotice.Visible());
  EXPECT_FALSE(frmMain.lblOrvandelSystems.Visible());
  EXPECT_FALSE(frmMain.lblOnlineDocumentation.Visible());
}

TEST_F(Summary, TheOnlyCountOnlyWordWasFound) {
  CountOnly(1, 1);
  Show();
  EXPECT_EQ(frmMain.lblNumberOfWords.Caption(), "The word to be counted was found.");
}

TEST_F(Summary, BothCountOnlyWordsWereFound) {
  CountOnly(2, 2);
  Show();
  EXPECT_EQ(frmMain.lblNumberOfWords.Caption(), "Both words to be counted were found.");
}

TEST_F(Summary, AllCountOnlyWordsWereFoundAndTheirNumberIsJustifiedToo) {
  CountOnly(1'500, 1'500);
  Show();
  EXPECT_EQ(frmMain.lblNumberOfWords.Caption(), "All   1,500 words to be counted were found.");
}

TEST_F(Summary, WidthIsMeasuredInCharactersNotBytes) {
  ShowSummary(frmMain, words, inForce, "\u202F");
  EXPECT_EQ(frmMain.lblNumberOfWords.Caption(), "Number of words in this list:    321");
  EXPECT_EQ(frmMain.lblTotalNumOccurrences.Caption(),
            "Total number of instances of words: 12\u202F345");
}

TEST_F(Summary, SomeCountOnlyWordsFound) {
  CountOnly(3, 2);
  Show();
  EXPECT_EQ(frmMain.lblNumberOfWords.Caption(), "Number of words in this list:      2");
}

TEST_F(Summary, CountOnlyWordsHaveNoOtherLines) {
  CountOnly(3, 2);
  Show();
  EXPECT_EQ(frmMain.lblNumWordsExcluded.Caption(), "");
  EXPECT_EQ(frmMain.lblNumOccurrences.Caption(), "");
  EXPECT_EQ(frmMain.lblTotalNumOccurrences.Caption(), "");
}

TEST_F(Summary, StoppedCountHasNoTotals) {
  words.listAfterStop = true;
  Show();
  EXPECT_EQ(frmMain.lblNumberOfWords.Caption(), "Number of words in this list:    321");
  EXPECT_EQ(frmMain.lblNumOccurrences.Caption(), "");
  EXPECT_EQ(frmMain.lblTotalNumOccurrences.Caption(), "");
}

TEST_F(Summary, ListWithoutWordsStillHasTheTotalOfWordsRead) {
  words.totals = {};
  Show();
  EXPECT_EQ(frmMain.lblNumberOfWords.Caption(), "Number of words in this list:      0");
  EXPECT_EQ(frmMain.lblNumOccurrences.Caption(), "");
  EXPECT_EQ(frmMain.lblTotalNumOccurrences.Caption(), "Total number of instances of words: 12,345");
}

TEST_F(Summary, ConcealedLabelsMakeRoomForTheNoticesIfAsked) {
  Show();
  ConcealNumWords(frmMain, false);
  EXPECT_FALSE(frmMain.lblNumberOfWords.Visible());
  EXPECT_FALSE(frmMain.lblNumWordsExcluded.Visible());
  EXPECT_FALSE(frmMain.lblNumOccurrences.Visible());
  EXPECT_FALSE(frmMain.lblTotalNumOccurrences.Visible());
  EXPECT_FALSE(frmMain.lblCopyrightNotice.Visible());
  ConcealNumWords(frmMain, true);
  EXPECT_TRUE(frmMain.lblCopyrightNotice.Visible());
  EXPECT_TRUE(frmMain.lblOrvandelSystems.Visible());
  EXPECT_TRUE(frmMain.lblOnlineDocumentation.Visible());
}

}  // namespace
}  // namespace quillomat
