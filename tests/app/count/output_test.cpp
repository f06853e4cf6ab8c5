// The output text box: the commands beside it, the list in it, and what happens when it is full.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"
#include "base/run_time_error.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OutputTest : public CountFixture {
 protected:
  /// More words than the text box takes as a list, which are 44,000 characters.
  [[nodiscard]] static std::string TooManyWords() { return "extra " + ManyWords(5'000); }
  void CountTooMuch() {
    ListWordsOnly();
    CountClipboard(TooManyWords());
  }
};

// The commands.

TEST_F(OutputTest, ClearTextboxEmptiesItAndBringsTheNoticesBack) {
  CountClipboard("cat");
  Main().cmdClearOutput.PerformClick();
  EXPECT_EQ(Output(), "");
  EXPECT_FALSE(Main().lblNumberOfWords.Visible());
  EXPECT_FALSE(Main().lblNumWordsExcluded.Visible());
  EXPECT_FALSE(Main().lblNumOccurrences.Visible());
  EXPECT_FALSE(Main().lblTotalNumOccurrences.Visible());
  EXPECT_TRUE(Main().lblCopyrightNotice.Visible());
  EXPECT_TRUE(Main().lblOrvandelSystems.Visible());
  EXPECT_TRUE(Main().lblOnlineDocumentation.Visible());
}

TEST_F(OutputTest, ClearTextboxMovesTheFocusOnceTheWindowHasLoaded) {
  Main().Show();
  Main().optOnClipboard.SetValue(true);
  program.BeginControls();
  Main().cmdClearOutput.PerformClick();
  EXPECT_EQ(Main().Focused(), &Main().cmdClearOutput);
  program.TakeControls();
  Main().cmdClearOutput.PerformClick();
  EXPECT_EQ(Main().Focused(), &Main().cmdCountWords);
}

TEST_F(OutputTest, ClearTextboxEndsItsFullness) {
  CountTooMuch();
  ASSERT_TRUE(program.Output().IsFull());
  Main().cmdClearOutput.PerformClick();
  EXPECT_FALSE(program.Output().IsFull());
}

TEST_F(OutputTest, AClearedListIsThereAgainWithTheNextChoice) {
  CountClipboard("dog cat");
  Main().cmdClearOutput.PerformClick();
  ListWordsOnly();
  EXPECT_EQ(Output(), "Word (longest has 3 characters)\r\ncat\r\ndog\r\n");
}

TEST_F(OutputTest, CopyToClipboardPutsTheWholeTextThere) {
  ListWordsOnly();
  CountClipboard("caf\u00E9");
  Main().cmdCopyToClipboard.PerformClick();
  EXPECT_EQ(desktop.Clipboard(), "Word (longest has 4 characters)\r\ncaf\u00E9\r\n");
}

TEST_F(OutputTest, CopyingAnEmptyTextEmptiesTheClipboard) {
  desktop.SetClipboard("cat");
  Main().cmdCopyToClipboard.PerformClick();
  EXPECT_EQ(desktop.Clipboard().value_or(""), "");
}

TEST_F(OutputTest, AClipboardThatDoesNotTakeTheTextIsTold) {
  CountClipboard("cat");
  desktop.FailClipboardWrite(true);
  EXPECT_NO_THROW(Main().cmdCopyToClipboard.PerformClick());
  ExpectMessage(OnlyMessage(), "Out of memory", "Quillomat", MessageIcon::kExclamation);
}

TEST_F(OutputTest, TheSuppressBoxAdvisesWhileItIsClear) {
  EXPECT_EQ(Main().chkSuppressWords.ToolTip(), "Check this box for faster processing.");
  Main().chkSuppressWords.PerformClick();
  EXPECT_EQ(Main().chkSuppressWords.ToolTip(), "");
  Main().chkSuppressWords.PerformClick();
  EXPECT_EQ(Main().chkSuppressWords.ToolTip(), "Check this box for faster processing.");
}

TEST_F(OutputTest, TheSuppressBoxLeavesAListAlone) {
  CountClipboard("cat");
  const std::string list = Output();
  Main().chkSuppressWords.PerformClick();
  EXPECT_EQ(Output(), list);
}

TEST_F(OutputTest, TheSuppressBoxBreaksNoLineWhereNothingStands) {
  AtYield(1, [this] {
    Main().txbOutput.SetText("");
    Main().chkSuppressWords.PerformClick();
    EXPECT_EQ(Output(), "");
  });
  CountClipboard("cat dog");
}

TEST_F(OutputTest, TheSuppressBoxMovesTheFocus) {
  Main().Show();
  Main().optOnClipboard.SetValue(true);
  Main().chkSuppressWords.PerformClick();
  EXPECT_EQ(Main().Focused(), &Main().cmdCountWords);
}

// The list.

TEST_F(OutputTest, TheListReplacesAllThatStoodThere) {
  ListWordsOnly();
  CountClipboard("dog cat");
  EXPECT_EQ(Output(), "Word (longest has 3 characters)\r\ncat\r\ndog\r\n");
}

TEST_F(OutputTest, TheListIsShownFromItsStart) {
  CountClipboard("dog cat");
  EXPECT_EQ(Main().txbOutput.SelStart(), 0U);
}

TEST_F(OutputTest, AFolderIsNamedAboveTheList) {
  static_cast<void>(folder.Write("a.txt", "cat"));
  ListWordsOnly();
  CountFolder(folder.Path());
  EXPECT_EQ(Output(),
            "1 file (in 1 folder) was scanned.\r\nWord (longest has 3 characters)\r\ncat\r\n");
}

TEST_F(OutputTest, WordsWithCommasEndWithoutOneAndHaveNoHeader) {
  ChooseFormat(DisplayFormat::kWordCommas);
  CountClipboard("dog cat dog");
  EXPECT_EQ(Output(), "dog, cat");
}

TEST_F(OutputTest, OneShortWordHasNoCommaEither) {
  ChooseFormat(DisplayFormat::kWordCommas);
  CountClipboard("a");
  EXPECT_EQ(Output(), "a");
}

TEST_F(OutputTest, WithoutWordsAMessageStandsThere) {
  CountClipboard("...");
  EXPECT_EQ(Output(), "No words satisfying the conditions were found.");
  Panel().chkIgnoreInfrequentWords.SetChecked(true);
  CountClipboard("cat");
  EXPECT_EQ(Output(), "No words with more than 2 letters\r\noccur at least twice.");
  Panel().cboThresholdFrequency.SetListIndex(1);
  Panel().cboShortWordSize.SetListIndex(0);
  CountClipboard("cat");
  EXPECT_EQ(Output(), "No words with more than 1 letter\r\noccur at least 2 times.");
  Panel().chkIgnoreInfrequentWords.SetChecked(false);
  CountClipboard("xiv");
  EXPECT_EQ(Output(), "No words with more than 1 letter\r\noccur at least once.");
  ExpectIdle();
}

TEST_F(OutputTest, TheBoxIsWrittenThreeTimesForALongList) {
  ListWordsOnly();
  CountClipboard(ManyWords(1'000));
  WatchOutput();
  ChooseOrder(WordOrder::kAlphabetical);
  // Emptied, the header, the preview, all of it; the first lines pass 2,048 characters.
  ASSERT_EQ(Shown().size(), 4U);
  EXPECT_EQ(Shown()[0], "");
  EXPECT_EQ(Shown()[1], "Word (longest has 9 characters)\r\n");
  EXPECT_GT(Shown()[2].size(), 2'048U);
  EXPECT_LE(Shown()[2].size(), 2'048U + 11U);
  EXPECT_EQ(Shown()[3], Output());
}

TEST_F(OutputTest, AShortListHasNoPreview) {
  ListWordsOnly();
  CountClipboard("dog cat");
  WatchOutput();
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_THAT(Shown(), ElementsAre("", "Word (longest has 3 characters)\r\n", Output()));
}

TEST_F(OutputTest, TheTwirlerTurnsWhileWordsAreListedAndStopsThen) {
  const CaptionLog log(Main().lblTwirler);
  CountClipboard("a b c d e");
  // A B C D E have the places 1 to 5; the consonants are left out of the list.
  EXPECT_THAT(log.Captions(), ElementsAre("\u258C", " "));
  EXPECT_EQ(Main().lblTwirler.FontName(), "Terminal");
}

TEST_F(OutputTest, TheTwirlerGoesByThePlaceInTheAlphabet) {
  const CaptionLog log(Main().lblTwirler);
  CountClipboard("ox cow cat ant bee");
  EXPECT_THAT(log.Captions(), ElementsAre("\u258C", "\u2580", "\u2590", "\u2584", "\u258C", " "));
}

// A full box.

TEST_F(OutputTest, ALongListIsCutAndTheUserSentToAFile) {
  CountTooMuch();
  ExpectMessage(OnlyMessage(), "Textbox is full.  Try writing output to a file.", "Problem",
                MessageIcon::kExclamation);
  EXPECT_GT(Main().txbOutput.Length(), 44'000U);
  EXPECT_LE(Main().txbOutput.Length(), 44'011U);
  EXPECT_TRUE(program.Output().IsFull());
  ExpectIdle();
}

TEST_F(OutputTest, WithFileOutputDisabledTheUserIsSentThere) {
  ListTo(folder / "out.txt");
  Main().chkDisableOutputToFile.SetChecked(true);
  CountTooMuch();
  EXPECT_EQ(OnlyMessage().text, "Textbox is full.  Try repeating with output to file enabled.");
}

TEST_F(OutputTest, WithTheFileWrittenTheUserIsSentThere) {
  ListTo(folder / "out.txt");
  CountTooMuch();
  EXPECT_EQ(OnlyMessage().text,
            "Textbox is full.  \r\nResults have been written to the output file.");
  EXPECT_EQ(TextOf(folder / "out.txt").size(), 32U + 6U + 5'000U * 10);
}

TEST_F(OutputTest, ABoxOfExactly44000CharactersIsNotFull) {
  ListWordsOnly();
  CountClipboard(ManyWords(3'997));  // lines of 11 characters below a header of 33
  EXPECT_EQ(Main().txbOutput.Length(), 44'000U);
  EXPECT_FALSE(program.Output().IsFull());
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(OutputTest, AFullBoxDoesNotOutliveItsList) {
  CountTooMuch();
  desktop.ForgetQuestions();
  CountClipboard("dog cat");
  EXPECT_EQ(Output(), "Word (longest has 3 characters)\r\ncat\r\ndog\r\n");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(OutputTest, AFullListWithCommasEndsWithoutOne) {
  ChooseFormat(DisplayFormat::kWordCommas);
  CountClipboard(TooManyWords());
  EXPECT_EQ(OnlyMessage().title, "Problem");
  EXPECT_FALSE(Output().ends_with(", "));
  EXPECT_FALSE(Output().ends_with(","));
}

TEST_F(OutputTest, StopBehindTheLimitAddsNothingToAFullBox) {
  ListWordsOnly();
  StopAtYield(5'001 + 4'500);
  CountClipboard(TooManyWords());
  EXPECT_FALSE(Has(Output(), "Listing stopped."));
  EXPECT_EQ(OnlyMessage().title, "Problem");
  ExpectIdle();
}

TEST_F(OutputTest, AProblemIsShownWithItsNumberAndText) {
  program.Lister().ReportProblem(61, "Disk full");
  ExpectMessage(OnlyMessage(), "Error 61: Disk full", "Problem", MessageIcon::kExclamation);
  EXPECT_FALSE(program.Output().IsFull());
}

TEST_F(OutputTest, AProblemBehindAWrittenFileSaysSo) {
  ListTo(folder / "out.txt");
  CountClipboard("cat");
  program.Lister().ReportProblem(57, "Device I/O error");
  EXPECT_EQ(OnlyMessage().text,
            "Error 57: Device I/O error\r\nResults have been written to the output file.");
}

TEST_F(OutputTest, WithNothingListedYetAFullBoxIsJustFull) {
  program.Lister().ReportProblem(7, "Insufficient memory");
  EXPECT_EQ(OnlyMessage().text, "Textbox is full.  Try writing output to a file.");
  EXPECT_TRUE(program.Output().IsFull());
  EXPECT_EQ(Output(), "");
}

TEST_F(OutputTest, ABoxThatTakesTheListNoLongerShowsItsFirst4096Characters) {
  CountTooMuch();
  const std::string list = Output();
  desktop.ForgetQuestions();
  Main().txbOutput.SetText(std::string(255, 'x'));
  program.Lister().ReportProblem(7, "");
  ExpectMessage(OnlyMessage(),
                "There is more output than will fit in the textbox.  Try writing output to a file.",
                "Problem", MessageIcon::kExclamation);
  EXPECT_EQ(Output(), list.substr(0, 4'096));
}

TEST_F(OutputTest, ABoxOf256CharactersKeepsThem) {
  CountTooMuch();
  desktop.ForgetQuestions();
  Main().txbOutput.SetText(std::string(256, 'x'));
  program.Lister().ReportProblem(7, "");
  EXPECT_EQ(OnlyMessage().text, "Textbox is full.  Try writing output to a file.");
  EXPECT_EQ(Output(), std::string(256, 'x'));
}

TEST_F(OutputTest, AnErrorInTheListEndsItWithTheHeaderOnTheScreen) {
  ListWordsOnly();
  AtYield(4, [] { throw RunTimeError(RunTimeErrorNumber::kDeviceIo); });
  const CaptionLog log(Main().lblTwirler);
  CountClipboard("ant bee cat");
  ExpectMessage(OnlyMessage(), "Error 57: Device I/O error", "Problem", MessageIcon::kExclamation);
  EXPECT_EQ(Output(), "Word (longest has 3 characters)\r\n");
  EXPECT_THAT(log.Captions(), ElementsAre("\u258C", " "));
  ExpectIdle();
}

}  // namespace
}  // namespace quillomat
