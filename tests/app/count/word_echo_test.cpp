// What the user sees of a scan: the number of different words so far, and each new word.
#include "app/count/word_echo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"

namespace quillomat {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::Not;

const std::string kSuppressing = "\r\n\r\n[Suppressing display of words to avoid buffer overflow.]";

class WordEchoTest : public CountFixture {
 protected:
  /// The captions that the label of the number of words has in a count, without that of the summary
  /// and without empty ones.
  std::vector<std::string> NumbersShownFor(const std::string& text) {
    const CaptionLog log(Main().lblNumberOfWords);
    CountClipboard(text);
    std::vector<std::string> numbers;
    for (const std::string& caption : log.Captions()) {
      if (Has(caption, "so far")) numbers.push_back(caption);
    }
    return numbers;
  }
};

// The number of words.

TEST_F(WordEchoTest, EveryTenthNewWordShowsTheNumber) {
  EXPECT_THAT(NumbersShownFor(ManyWords(25)),
              ElementsAre("Number of different words found so far: 10",
                          "Number of different words found so far: 20"));
}

TEST_F(WordEchoTest, NineWordsShowNoNumber) {
  EXPECT_THAT(NumbersShownFor(ManyWords(9)), IsEmpty());
}

TEST_F(WordEchoTest, OnlyNewWordsMakeANumber) {
  EXPECT_THAT(NumbersShownFor(ManyWords(10) + ManyWords(10)),
              ElementsAre("Number of different words found so far: 10"));
}

TEST_F(WordEchoTest, TheFirstWordShowsTheLabel) {
  Main().lblNumberOfWords.SetVisible(false);
  AtYield(1, [this] { EXPECT_TRUE(Main().lblNumberOfWords.Visible()); });
  CountClipboard("cat dog");
}

TEST_F(WordEchoTest, TheNumberOfAnEarlierCountIsNotShown) {
  CountClipboard("hen hen");
  AtYield(1, [this] { EXPECT_EQ(Main().lblNumberOfWords.Caption(), ""); });
  CountClipboard("cat dog");
}

TEST_F(WordEchoTest, CountOnlyWordsAreNumberedOneByOne) {
  TypeWords(WordListKind::kCountOnly, "one two three");
  EXPECT_THAT(NumbersShownFor("four one two one three"),
              ElementsAre("One word found so far.", "Number of different words found so far: 2",
                          "Number of different words found so far: 3"));
}

TEST_F(WordEchoTest, NumbersAreGroupedAsTheUserWritesThem) {
  EXPECT_THAT(NumbersShownFor(ManyWords(1'000)),
              Contains("Number of different words found so far: 1,000"));
  desktop.SetDigitGroupSeparator("\u202F");
  EXPECT_THAT(NumbersShownFor(ManyWords(1'000)),
              Contains("Number of different words found so far: 1\u202F000"));
}

TEST_F(WordEchoTest, WordsOfAListAreNumberedByTens) {
  const CaptionLog log(Main().lblNumberOfWords);
  desktop.AnswerFile(folder.Write("words.txt", ManyWords(25)));
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_THAT(log.Captions(),
              IsSupersetOf({"Number of words read so far: 10", "Number of words read so far: 20"}));
  EXPECT_THAT(log.Captions(), Not(Contains("Number of words read so far: 11")));
}

TEST_F(WordEchoTest, WordsOfAListAreNumberedByTensAlsoWithCountOnlyWords) {
  TypeWords(WordListKind::kCountOnly, "one two");
  CountClipboard("one");
  const CaptionLog log(Main().lblNumberOfWords);
  desktop.Answer("Proceed?", MessageAnswer::kYes);
  desktop.AnswerFile(folder.Write("words.txt", ManyWords(12)));
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_THAT(log.Captions(), Contains("Number of words read so far: 10"));
  EXPECT_THAT(log.Captions(), Not(Contains("Number of words read so far: 2")));
}

TEST_F(WordEchoTest, WordsOfAListAreNotShown) {
  WatchOutput();
  desktop.AnswerFile(folder.Write("words.txt", "cat dog"));
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_FALSE(WasShown("cat dog "));
}

// The words.

TEST_F(WordEchoTest, EachNewWordIsShownOnceWithABlankBehindIt) {
  AtYield(4, [this] { EXPECT_EQ(Output(), "cat dog cow "); });
  CountClipboard("cat dog Cat cow");
}

TEST_F(WordEchoTest, WordsTooLongForTheStoreAreNotShown) {
  WatchOutput();
  CountClipboard("cat " + std::string(101, 'a') + " dog");
  EXPECT_TRUE(WasShown("cat dog "));
  EXPECT_EQ(StoredWords(), "cat dog");
  EXPECT_EQ(Words().WordsRead, 3);
}

TEST_F(WordEchoTest, ACheckedBoxSuppressesTheWords) {
  for (const CheckState state : {CheckState::kChecked, CheckState::kGrayed}) {
    Main().chkSuppressWords.SetValue(state);
    AtYield(2, [this] { EXPECT_EQ(Output(), ""); });
    CountClipboard("cat dog cow");
    EXPECT_EQ(StoredWords(), "cat cow dog");
    EXPECT_EQ(Main().chkSuppressWords.Value(), state);
  }
}

TEST_F(WordEchoTest, TheBoxMayBeCheckedDuringTheScanWhichBreaksTheLine) {
  AtYield(2, [this] { Main().chkSuppressWords.PerformClick(); });
  AtYield(4, [this] { EXPECT_EQ(Output(), "cat dog \r\n"); });
  CountClipboard("cat dog cow hen");
}

TEST_F(WordEchoTest, TheBoxMayBeClearedDuringTheScan) {
  Main().chkSuppressWords.SetChecked(true);
  AtYield(2, [this] { Main().chkSuppressWords.PerformClick(); });
  AtYield(4, [this] { EXPECT_EQ(Output(), "cow hen "); });
  CountClipboard("cat dog cow hen");
  EXPECT_TRUE(Main().chkSuppressWords.IsChecked());
}

// The limit.

TEST_F(WordEchoTest, ABoxOfExactly44000CharactersIsNotTooLong) {
  WatchOutput();
  CountClipboard(ManyWords(4'400));
  EXPECT_FALSE(WasShown("[Suppressing"));
}

TEST_F(WordEchoTest, TheWordThatPassesTheLimitIsTheLastOneShown) {
  const std::string words = ManyWords(4'401);
  AtYield(4'403, [&] {
    EXPECT_EQ(Output(), words + kSuppressing + "\r\n");
    EXPECT_TRUE(Main().chkSuppressWords.IsChecked());
  });
  CountClipboard(ManyWords(4'403));
  EXPECT_EQ(Words().store.NumDifferentWords(), 4'403);
}

TEST_F(WordEchoTest, TheLimitCountsCharactersNotBytes) {
  std::string text;
  for (const char letter : ManyWords(4'400)) text += letter == 'w' ? "\u00FC" : std::string{letter};
  WatchOutput();
  CountClipboard(text);
  EXPECT_FALSE(WasShown("[Suppressing"));
}

TEST_F(WordEchoTest, TheFirstWordIsShownHoweverLongTheBoxIsAndTheSecondSuppresses) {
  const std::string before(44'001, 'x');
  Main().txbOutput.SetText(before);
  ProgramParts parts({Main(), Panel(), program.frmHelp, program.frmExport}, desktop,
                     std::chrono::steady_clock::now);
  parts.mainWindow.Connect();
  WordEcho echo(Main(), parts.output, parts.messages, parts.inForce.settings);
  echo.OnNewWord("cat", 1);
  EXPECT_EQ(Output(), before + "cat ");
  EXPECT_FALSE(Main().chkSuppressWords.IsChecked());
  echo.OnNewWord("dog", 2);
  EXPECT_EQ(Output(), before + "cat dog " + kSuppressing + "\r\n");
  EXPECT_TRUE(Main().chkSuppressWords.IsChecked());
  echo.OnNewWord("cow", 3);
  EXPECT_EQ(Output(), before + "cat dog " + kSuppressing + "\r\n");
}

TEST_F(WordEchoTest, NobodyListensWhenTheScanIsOver) {
  ProgramParts parts({Main(), Panel(), program.frmHelp, program.frmExport}, desktop,
                     std::chrono::steady_clock::now);
  ASSERT_TRUE(parts.text.LoadProgramText("qlav_text.dat", desktop));
  Main().optOnClipboard.SetValue(true);
  desktop.SetClipboard("cat");
  parts.countRun.OnCountClick();
  const std::string list = Output();
  parts.words.store.AddWord("dog");
  EXPECT_EQ(Output(), list);
}

}  // namespace
}  // namespace quillomat
