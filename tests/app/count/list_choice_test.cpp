// The choice of the order and of the format of the list, before, during and after counts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kHeaderLine = "Word (longest has 3 characters)\r\n";

class ListChoice : public CountFixture {
 protected:
  void ExpectRefused(DisplayFormat format, const std::string& name) {
    desktop.ForgetQuestions();
    ChooseFormat(DisplayFormat::kWord);
    const std::string before = Output();
    ChooseFormat(format);
    ExpectMessage(OnlyMessage(),
                  "The display format '" + name +
                      "' is available\r\n"
                      "only when the source of the text is a folder\r\n"
                      "and there are count-only words specified.",
                  "Invalid display format", MessageIcon::kInformation);
    EXPECT_EQ(Main().cboDisplayFormat.ListIndex(), 0);
    EXPECT_EQ(Output(), before);
  }
  void ExpectFileFormatsRefused() {
    ExpectRefused(DisplayFormat::kWordFreqNoFiles, "word freq no.files");
    ExpectRefused(DisplayFormat::kWordFileList, "word file-list");
    ExpectRefused(DisplayFormat::kWordFileListFreq, "word file-list (+ freq)");
  }

  /// Counts "cat" in a folder of two files.
  void CountCatsOfAFolder() {
    static_cast<void>(folder.Write("texts/a.txt", "cat dog cat"));
    static_cast<void>(folder.Write("texts/b.txt", "cat"));
    TypeWords(WordListKind::kCountOnly, "cat");
    CountFolderWithoutOutputFile(folder / "texts");
    desktop.ForgetQuestions();
  }
};

// The lists of choices.

TEST_F(ListChoice, TwoOrdersCanBeChosen) {
  EXPECT_THAT(Main().cboWordOrder.Items(), ElementsAre("by frequency", "alphabetical"));
  EXPECT_EQ(Main().cboWordOrder.ListIndex(), 0);
}

TEST_F(ListChoice, FourteenFormatsCanBeChosen) {
  EXPECT_THAT(Main().cboDisplayFormat.Items(),
              ElementsAre("rank frequency word", "rank word frequency", "rank frequency",
                          "rank word", "frequency rank", "frequency word", "word rank",
                          "word frequency", "word", "word (+commas)", "Zipf data",
                          "word freq no.files", "word file-list", "word file-list (+freq)"));
  EXPECT_EQ(Main().cboDisplayFormat.ListIndex(), 0);
}

// Listing again.

TEST_F(ListChoice, BeforeAnyCountAChoiceListsNothing) {
  ChooseOrder(WordOrder::kAlphabetical);
  ChooseFormat(DisplayFormat::kWord);
  EXPECT_EQ(Output(), "");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(ListChoice, ANewOrderListsTheSameWordsWithoutACount) {
  ListWordsOnly();
  CountClipboard("dog cat dog");
  desktop.SetClipboard("hen");
  EXPECT_EQ(Output(), kHeaderLine + "dog\r\ncat\r\n");
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), kHeaderLine + "cat\r\ndog\r\n");
  ChooseOrder(WordOrder::kByFrequency);
  EXPECT_EQ(Output(), kHeaderLine + "dog\r\ncat\r\n");
}

TEST_F(ListChoice, ANewFormatListsTheSameWords) {
  CountClipboard("dog cat dog");
  EXPECT_EQ(Output(),
            "   Rank    Freq  Word (longest has 3 characters)\r\n"
            "      1       2  dog\r\n"
            "      2       1  cat\r\n");
  ChooseFormat(DisplayFormat::kWordFrequency);
  EXPECT_EQ(Output(), "  Word     Freq\r\n  dog         2\r\n  cat         1\r\n");
  ChooseFormat(DisplayFormat::kWordCommas);
  EXPECT_EQ(Output(), "dog, cat");
}

TEST_F(ListChoice, TheBaseOfLogarithmsIsTakenWhenTheListIsMade) {
  Panel().chkUseLog10.SetChecked(false);
  CountClipboard("dog dog cat");
  ChooseFormat(DisplayFormat::kZipfData);
  EXPECT_TRUE(Has(Output(), "     1       2   .0000   .6931  dog\r\n"));
  Panel().chkUseLog10.SetChecked(true);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_TRUE(Has(Output(), "     1       2   .0000   .3010  dog\r\n"));
}

TEST_F(ListChoice, TheSummaryStands) {
  CountClipboard("dog cat dog");
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_TRUE(Main().lblNumberOfWords.Visible());
  EXPECT_EQ(Main().lblNumberOfWords.Caption(), "Number of words in this list: 2");
}

TEST_F(ListChoice, WordsThatWereNotFoundAreNotFoundAgain) {
  CountClipboard("...");
  Main().cmdClearOutput.PerformClick();
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), "No words satisfying the conditions were found.");
}

TEST_F(ListChoice, TheSameChoiceAgainListsNothing) {
  CountClipboard("cat");
  WatchOutput();
  ChooseOrder(WordOrder::kByFrequency);
  EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(ListChoice, WhileTheWindowLoadsAChoiceIsJustStored) {
  CountClipboard("cat");
  const std::string before = Output();
  program.BeginControls();
  ChooseFormat(DisplayFormat::kWordFileList);
  EXPECT_EQ(Main().cboDisplayFormat.ListIndex(), 12);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), before);
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(ListChoice, TheFocusMovesOn) {
  Main().Show();
  CountClipboard("cat");
  for (int index = 8; index <= 12; index += 4) {
    Main().SetFocus(Main().cboDisplayFormat);
    Main().cboDisplayFormat.SetListIndex(index);
    EXPECT_EQ(Main().Focused(), &Main().cmdCountWords) << index;
  }
}

TEST_F(ListChoice, AWordsFileThatIsReadTakesTheListAway) {
  CountClipboard("cat dog");
  desktop.AnswerFile(folder.Write("words.txt", "hen"));
  Panel().cmdSelectWordsFile[0].PerformClick();
  const std::string before = Output();
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), before);
}

// Formats that need a folder.

TEST_F(ListChoice, FileFormatsAreRefusedForOtherSources) {
  CountClipboard("cat");
  ExpectFileFormatsRefused();
  TypeWords(WordListKind::kCountOnly, "cat");
  ExpectFileFormatsRefused();
  Main().optInFile.SetValue(true);
  ExpectFileFormatsRefused();
}

TEST_F(ListChoice, FileFormatsAreRefusedWithoutCountOnlyWords) {
  static_cast<void>(folder.Write("a.txt", "cat"));
  CountFolder(folder.Path());
  ExpectFileFormatsRefused();
}

TEST_F(ListChoice, FileFormatsAreRefusedBeforeAnyCount) {
  ExpectFileFormatsRefused();
}

TEST_F(ListChoice, ARefusalLeavesTheListAsItIsAndTheNextChoiceListsAgain) {
  CountClipboard("dog cat dog");
  ChooseFormat(DisplayFormat::kWordFileList);
  ChooseFormat(DisplayFormat::kWord);
  EXPECT_EQ(Output(), kHeaderLine + "dog\r\ncat\r\n");
}

TEST_F(ListChoice, AFolderWithTypedCountOnlyWordsHasItsFilesListed) {
  CountCatsOfAFolder();
  ChooseFormat(DisplayFormat::kWordFreqNoFiles);
  EXPECT_EQ(Output(),
            "2 files (in 1 folder) were scanned.\r\n"
            "  Word     Freq   No. files\r\n"
            "  cat         3    2\r\n");
  ChooseFormat(DisplayFormat::kWordFileListFreq);
  EXPECT_EQ(Output(),
            "2 files (in 1 folder) were scanned.\r\n\r\n{Folder} = " + (folder / "texts") +
                NativePaths("\r\n\r\ncat\r\n"
                            "    2 {Folder}/a.txt\r\n"
                            "    1 {Folder}/b.txt\r\n\r\n"));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(ListChoice, AFolderWithAFileOfCountOnlyWordsHasItsFilesListed) {
  desktop.AnswerFile(folder.Write("words.txt", "cat"));
  Panel().cmdSelectWordsFile[1].PerformClick();
  desktop.ForgetQuestions();
  static_cast<void>(folder.Write("texts/a.txt", "cat"));
  CountFolder(folder / "texts");
  ChooseFormat(DisplayFormat::kWordFileList);
  EXPECT_TRUE(Output().ends_with(NativePaths("\r\ncat\r\n    {Folder}/a.txt\r\n\r\n")));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(ListChoice, ACountWithoutFilesHasNoneToList) {
  CountClipboard("cat");
  Main().optFolder.SetValue(true);
  TypeWords(WordListKind::kCountOnly, "cat");
  ChooseFormat(DisplayFormat::kWordFileList);
  EXPECT_TRUE(Output().ends_with("cat\r\n\r\n"));
  ChooseFormat(DisplayFormat::kWordFreqNoFiles);
  EXPECT_TRUE(Output().ends_with("  cat         1    0\r\n"));
}

TEST_F(ListChoice, AFolderBoxChangedSinceTheCountDoesNoHarm) {
  CountCatsOfAFolder();
  Main().txbFolder.SetText(std::string(5'000, 'x'));
  ChooseFormat(DisplayFormat::kWordFileList);
  EXPECT_TRUE(Output().ends_with("\r\ncat\r\n    {Folder}\r\n    {Folder}\r\n\r\n"));
  Main().txbFolder.SetText("");
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_TRUE(Has(Output(), "    " + (folder / "texts/a.txt") + "\r\n"));
}

// A list that goes on.

TEST_F(ListChoice, AChoiceWhileAListIsMadeAgainIsNotTakenUp) {
  ListWordsOnly();
  CountClipboard("ant bee cat");
  AtYield(2, [this] {
    EXPECT_FALSE(Main().cboDisplayFormat.Enabled());
    ChooseFormat(DisplayFormat::kWordFileList);
    ChooseFormat(DisplayFormat::kWord);
    Main().cmdListFiles.PerformClick();
    Main().chkDisableOutputToFile.SetChecked(true);
    Main().chkDisableOutputToFile.SetChecked(false);
  });
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), kHeaderLine + "ant\r\nbee\r\ncat\r\n");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  ExpectIdle();
}

TEST_F(ListChoice, TheCommandStopsAListThatIsMadeAgainAndStartsNoCount) {
  ListWordsOnly();
  CountClipboard("ant bee cat");
  desktop.SetClipboard("hen");
  AtYield(1, [this] { Count(); });
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(StoredWords(), "ant bee cat");
  EXPECT_EQ(Output(), kHeaderLine + "ant\r\n\r\nListing stopped.\r\n");
  ExpectIdle();
}

TEST_F(ListChoice, ClearingTheTextBoxWhileAListIsMadeAgainDoesNotCutIt) {
  ListWordsOnly();
  CountClipboard("ant bee cat");
  AtYield(2, [this] { Main().cmdClearOutput.PerformClick(); });
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), kHeaderLine + "ant\r\nbee\r\ncat\r\n");
}

TEST_F(ListChoice, AClickOnTheClipboardWhileAListIsMadeAgainDoesNotEmptyIt) {
  ListWordsOnly();
  Main().optInFile.SetValue(true);
  CountFile(folder.Write("a.txt", "ant bee cat"));
  AtYield(2, [this] { Main().optOnClipboard.PerformClick(); });
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), kHeaderLine + "ant\r\nbee\r\ncat\r\n");
  ExpectIdle();
}

}  // namespace
}  // namespace quillomat
