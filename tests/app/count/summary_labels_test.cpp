// The summary labels at the end of a count.
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"

namespace quillomat {
namespace {

class SummaryLabels : public CountFixture {
 protected:
  void ExpectCaptions(const std::string& words, const std::string& excluded,
                      const std::string& occurrences, const std::string& total) {
    EXPECT_EQ(Main().lblNumberOfWords.Caption(), words);
    EXPECT_EQ(Main().lblNumWordsExcluded.Caption(), excluded);
    EXPECT_EQ(Main().lblNumOccurrences.Caption(), occurrences);
    EXPECT_EQ(Main().lblTotalNumOccurrences.Caption(), total);
  }
};

TEST_F(SummaryLabels, TellOfWordsListedAndLeftOut) {
  CountClipboard("cat dog cat xiv www bbb");
  ExpectCaptions("Number of words in this list: 2", "Number of words excluded: 3",
                 "Number of instances of words in this list: 3",
                 "Total number of instances of words: 6");
}

TEST_F(SummaryLabels, AreJustifiedToTheNumberOfWordsRead) {
  std::string text;
  for (int i = 0; i < 1'500; ++i) text += "cat ";
  CountClipboard(text + "dog xiv");
  ExpectCaptions("Number of words in this list:     2", "Number of words excluded:     1",
                 "Number of instances of words in this list: 1,501",
                 "Total number of instances of words: 1,502");
}

TEST_F(SummaryLabels, CountIgnoredAndTooLongWordsAmongThoseRead) {
  TypeWords(WordListKind::kIgnore, "dog");
  CountClipboard("cat dog " + std::string(101, 'a'));
  ExpectCaptions("Number of words in this list: 1", "Number of words excluded: 0",
                 "Number of instances of words in this list: 1",
                 "Total number of instances of words: 3");
}

TEST_F(SummaryLabels, AreShownAndTheNoticesHidden) {
  CountClipboard("cat");
  EXPECT_TRUE(Main().lblNumberOfWords.Visible());
  EXPECT_TRUE(Main().lblNumWordsExcluded.Visible());
  EXPECT_TRUE(Main().lblNumOccurrences.Visible());
  EXPECT_TRUE(Main().lblTotalNumOccurrences.Visible());
  EXPECT_FALSE(Main().lblCopyrightNotice.Visible());
  EXPECT_FALSE(Main().lblOrvandelSystems.Visible());
  EXPECT_FALSE(Main().lblOnlineDocumentation.Visible());
}

TEST_F(SummaryLabels, TellThatAllCountOnlyWordsWereFound) {
  TypeWords(WordListKind::kCountOnly, "cat");
  CountClipboard("cat dog");
  ExpectCaptions("The word to be counted was found.", "", "", "");
  TypeWords(WordListKind::kCountOnly, "cat dog");
  CountClipboard("cat dog hen");
  ExpectCaptions("Both words to be counted were found.", "", "", "");
  TypeWords(WordListKind::kCountOnly, "cat dog hen");
  CountClipboard("cat dog hen");
  ExpectCaptions("All  3 words to be counted were found.", "", "", "");
}

TEST_F(SummaryLabels, AddTypedCountOnlyWordsToThoseOfTheFile) {
  desktop.AnswerFile(folder.Write("words.txt", "cat"));
  Panel().cmdSelectWordsFile[1].PerformClick();
  TypeWords(WordListKind::kCountOnly, "dog");
  CountClipboard("cat dog");
  ExpectCaptions("Both words to be counted were found.", "", "", "");
}

TEST_F(SummaryLabels, TellHowManyCountOnlyWordsWereFoundWhenSomeAreMissing) {
  TypeWords(WordListKind::kCountOnly, "cat dog hen");
  CountClipboard("cat cat dog cow");
  ExpectCaptions("Number of words in this list: 2", "", "", "");
}

TEST_F(SummaryLabels, TellOfNothingFound) {
  CountClipboard("xiv");
  ExpectCaptions("Number of words in this list: 0", "Number of words excluded: 1", "",
                 "Total number of instances of words: 1");
}

TEST_F(SummaryLabels, HaveNoTotalsAfterAnInterruption) {
  desktop.Answer("Counting interrupted", MessageAnswer::kYes);
  StopAtYield(2);
  CountClipboard("cat dog hen");
  ExpectCaptions("Number of words in this list: 2", "Number of words excluded: 0", "", "");
}

TEST_F(SummaryLabels, AreHiddenWhileTheNextCountIsAtWork) {
  CountClipboard("cat");
  AtYield(1, [this] {
    EXPECT_FALSE(Main().lblNumWordsExcluded.Visible());
    EXPECT_FALSE(Main().lblNumOccurrences.Visible());
    EXPECT_FALSE(Main().lblTotalNumOccurrences.Visible());
  });
  CountClipboard("cat dog");
}

}  // namespace
}  // namespace quillomat
