// The output file: when it is written, what is asked before, what it holds, and what can go wrong.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"
#include "base/run_time_error.h"
#include "system/desktop_test.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kFileHeader = "Word (longest has 3 characters)";
const std::string kFileList = kFileHeader + "\ncat\ndog\n";
const std::string kBoxList = kFileHeader + "\r\ncat\r\ndog\r\n";

class OutputFileTest : public CountFixture {
 protected:
  OutputFileTest() { ListWordsOnly(); }

  void CountTwoWords() { CountClipboard("cat dog"); }

  /// The list did not go into the file, and the user was told so.
  void ExpectProblem(const std::string& text) {
    ExpectMessage(OnlyMessage(), text, "Problem", MessageIcon::kExclamation);
    EXPECT_EQ(Main().txbOutput.SelStart(), 0U);
    EXPECT_FALSE(program.Lister().FileWritten());
    ExpectIdle();
  }

  std::string path = folder / "out.txt";
};

// Where the list goes.

TEST_F(OutputFileTest, TheListGoesIntoTheFileAndIntoTheTextBox) {
  ListTo(path);
  CountTwoWords();
  EXPECT_EQ(TextOf(path), kFileList);
  EXPECT_EQ(Output(), kBoxList);
  EXPECT_TRUE(program.Lister().FileWritten());
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(OutputFileTest, WithoutAPathTheListGoesIntoTheTextBoxWhateverTheBoxSays) {
  for (const bool disabled : {false, true}) {
    Main().chkDisableOutputToFile.SetChecked(disabled);
    CountTwoWords();
    EXPECT_EQ(Output(), kBoxList);
    EXPECT_FALSE(program.Lister().FileWritten());
  }
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST_F(OutputFileTest, ADisabledFileIsNotWritten) {
  ListTo(path);
  Main().chkDisableOutputToFile.SetChecked(true);
  CountTwoWords();
  EXPECT_EQ(Output(), kBoxList);
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(OutputFileTest, WithoutWordsNoFileIsWritten) {
  ListTo(folder.Write("out.txt", "precious"));
  CountClipboard("...");
  EXPECT_EQ(ContentsOf(path), "precious");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(OutputFileTest, TheLineAboutTheFolderStandsInTheTextBoxOnly) {
  ListTo(path);
  TemporaryFolder texts;
  static_cast<void>(texts.Write("a.txt", "cat dog"));
  CountFolder(texts.Path());
  EXPECT_EQ(TextOf(path), kFileList);
  EXPECT_EQ(Output(), "1 file (in 1 folder) was scanned.\r\n" + kBoxList);
}

TEST_F(OutputFileTest, AListAgainGoesIntoTheFileToo) {
  DoNotWarn();
  ListTo(path);
  CountClipboard("dog cat dog");
  EXPECT_EQ(TextOf(path), kFileHeader + "\ndog\ncat\n");
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(TextOf(path), kFileList);
}

TEST_F(OutputFileTest, AnEmptyTextBoxTellsThatTheFileIsBeingWritten) {
  DoNotWarn();
  ListTo(path);
  CountTwoWords();
  WatchOutput();
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_FALSE(WasShown("Now writing to output file . . . "));
  Main().cmdClearOutput.PerformClick();
  ChooseOrder(WordOrder::kByFrequency);
  EXPECT_TRUE(WasShown("Now writing to output file . . . "));
}

// What it holds.

TEST_F(OutputFileTest, CommasStandInTheFileOnly) {
  Panel().chkOutputWithCommas.SetChecked(true);
  ChooseFormat(DisplayFormat::kWordFrequency);
  ListTo(path);
  CountClipboard("cat dog cat");
  EXPECT_EQ(TextOf(path), "  Word  ,   Freq\n  cat   ,      2\n  dog   ,      1\n");
  EXPECT_EQ(Output(), "  Word     Freq\r\n  cat         2\r\n  dog         1\r\n");
}

TEST_F(OutputFileTest, WithoutTheChoiceOfCommasTheFileHasNone) {
  ChooseFormat(DisplayFormat::kWordFrequency);
  ListTo(path);
  CountClipboard("cat");
  EXPECT_EQ(TextOf(path), "  Word     Freq\n  cat         1\n");
}

TEST_F(OutputFileTest, WordsWithCommasRunOnWithoutALineEnd) {
  ChooseFormat(DisplayFormat::kWordCommas);
  ChooseOrder(WordOrder::kAlphabetical);
  ListTo(path);
  CountClipboard("dog cat ant");
  EXPECT_EQ(ContentsOf(path), "ant, cat, dog");
  EXPECT_EQ(Output(), "ant, cat, dog");
}

TEST_F(OutputFileTest, WordsWithCommasByFrequencyMissTheCommaBehindTheLastInTheAlphabet) {
  ChooseFormat(DisplayFormat::kWordCommas);
  ListTo(path);
  CountClipboard("dog dog cat ant");
  EXPECT_EQ(ContentsOf(path), "dogant, cat, ");
  EXPECT_EQ(Output(), "dog, ant, cat");
}

TEST_F(OutputFileTest, AListTooLongForTheTextBoxIsWholeInTheFile) {
  ListTo(path);
  CountClipboard("extra " + ManyWords(5'000));
  EXPECT_EQ(TextOf(path).size(), 32U + 6U + 5'000U * 10);
  EXPECT_EQ(OnlyMessage().title, "Problem");
}

TEST_F(OutputFileTest, WordsAreWrittenInUtf8) {
  ListTo(path);
  CountClipboard("caf\u00E9 \u0161um");
  EXPECT_TRUE(Has(TextOf(path), "\ncaf\u00E9\n"));
}

// Whether an existing file is overwritten.

TEST_F(OutputFileTest, AnExistingFileIsAskedAbout) {
  ListTo(folder.Write("out.txt", "precious"));
  desktop.AnswerText(path);
  CountTwoWords();
  ASSERT_EQ(desktop.InputBoxes().size(), 1U);
  const InputBox& box = desktop.InputBoxes().front();
  EXPECT_EQ(box.title, "The output file exists.");
  EXPECT_EQ(box.prompt,
            "To overwrite the current output file click on 'OK'.\r\n"
            "To write to a different file edit the filepath below.\r\n"
            "To disable file output click on 'Cancel'.");
  EXPECT_EQ(box.defaultAnswer, path);
  // Its text names its commands, in whichever language the window is.
  EXPECT_EQ(box.okCaption, "OK");
  EXPECT_EQ(box.cancelCaption, "Cancel");
  EXPECT_TRUE(box.okLoses);
}

TEST_F(OutputFileTest, OkOnTheUnchangedPathOverwrites) {
  ListTo(folder.Write("out.txt", std::string(100, 'x')));
  desktop.AnswerText(path);
  CountTwoWords();
  EXPECT_EQ(TextOf(path), kFileList);
  EXPECT_EQ(Output(), kBoxList);
  EXPECT_FALSE(Main().chkDisableOutputToFile.IsChecked());
}

TEST_F(OutputFileTest, CancelLeavesTheFileAndDisablesFileOutput) {
  ListTo(folder.Write("out.txt", "precious"));
  desktop.AnswerText("");
  CountTwoWords();
  EXPECT_EQ(ContentsOf(path), "precious");
  EXPECT_TRUE(Main().chkDisableOutputToFile.IsChecked());
  EXPECT_EQ(Main().txbFile[1].Text(), path);
  EXPECT_EQ(Output(), kBoxList);
  EXPECT_THAT(desktop.Titles(), ElementsAre("The output file exists."));
  ExpectIdle();
}

TEST_F(OutputFileTest, AnAnswerOfBlanksIsLikeCancel) {
  ListTo(folder.Write("out.txt", "precious"));
  desktop.AnswerText("   ");
  CountTwoWords();
  EXPECT_EQ(ContentsOf(path), "precious");
  EXPECT_TRUE(Main().chkDisableOutputToFile.IsChecked());
}

TEST_F(OutputFileTest, AnotherPathIsWrittenInstead) {
  ListTo(folder.Write("out.txt", "precious"));
  desktop.AnswerText("  " + (folder / "Other.txt") + " ");
  CountTwoWords();
  EXPECT_EQ(ContentsOf(path), "precious");
  EXPECT_EQ(TextOf(folder / "Other.txt"), kFileList);
  EXPECT_EQ(Main().txbFile[1].Text(), PathForWalk(folder / "Other.txt"));
  EXPECT_FALSE(Main().chkDisableOutputToFile.IsChecked());
}

TEST_F(OutputFileTest, APathInAFolderThatDoesNotExistDisablesFileOutput) {
  ListTo(folder.Write("out.txt", "precious"));
  desktop.AnswerText(folder / "nowhere/out.txt");
  CountTwoWords();
  ExpectMessage(OnlyMessage(), "Folder does not exist.", "Error", MessageIcon::kExclamation);
  EXPECT_EQ(ContentsOf(path), "precious");
  EXPECT_EQ(Main().txbFile[1].Text(), path);
  EXPECT_TRUE(Main().chkDisableOutputToFile.IsChecked());
  EXPECT_EQ(Output(), kBoxList);
  ExpectIdle();
}

TEST_F(OutputFileTest, TheInputFileIsNeverTakenForAnAnswer) {
  const std::string input = folder.Write("in.txt", "cat dog");
  ListTo(folder.Write("out.txt", "precious"));
  desktop.AnswerText(input);
  CountFile(input);
  EXPECT_EQ(ContentsOf(input), "cat dog");
}

TEST_F(OutputFileTest, ThePathOfTheInputTypedAfterTheCountIsRefused) {
  DoNotWarn();
  const std::string input = folder.Write("in.txt", "cat dog");
  CountFile("  " + input + " ");
  desktop.ForgetQuestions();
  ListTo(input);
  Main().cboWordOrder.SetListIndex(1);
  ExpectMessage(OnlyMessage(), "The output file cannot be the same as the input file.", "Error",
                MessageIcon::kExclamation);
  EXPECT_EQ(ContentsOf(input), "cat dog");
  EXPECT_TRUE(Main().chkDisableOutputToFile.IsChecked());
  EXPECT_EQ(Output(), kBoxList);
  ExpectIdle();
}

TEST_F(OutputFileTest, AFileOfTheCountedFolderIsRefusedHoweverItIsNamed) {
  const std::string texts = folder.Make("texts");
  const std::string text = folder.Write("texts/in.txt", "cat dog");
  ListTo(folder.Write("out.txt", "precious"));
  desktop.AnswerText(text);
  CountFolder(texts);
  ExpectMessage(OnlyMessage(), "The output file cannot be in the folder or a subfolder.",
                "Invalid output file", MessageIcon::kExclamation);
  EXPECT_EQ(ContentsOf(text), "cat dog");
  EXPECT_EQ(ContentsOf(path), "precious");
  ExpectIdle();
}

TEST_F(OutputFileTest, AProblemOfTheNextRunDoesNotSpeakOfTheListBefore) {
  ListTo(path);
  CountTwoWords();
  EXPECT_TRUE(program.Lister().FileWritten());
  CountClipboard("");
  EXPECT_FALSE(program.Lister().FileWritten());
}

TEST_F(OutputFileTest, WithoutTheWarningAnExistingFileIsOverwritten) {
  DoNotWarn();
  ListTo(folder.Write("out.txt", "precious"));
  CountTwoWords();
  EXPECT_EQ(TextOf(path), kFileList);
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(OutputFileTest, AGreyBoxDoesNotWarn) {
  Panel().chkWarnOnOverwrite.SetValue(CheckState::kGrayed);
  ListTo(folder.Write("out.txt", "precious"));
  CountTwoWords();
  EXPECT_EQ(TextOf(path), kFileList);
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

// Switching file output on.

TEST_F(OutputFileTest, SwitchingItOnOffersToListAgain) {
  ListTo(path);
  Main().chkDisableOutputToFile.SetChecked(true);
  CountTwoWords();
  desktop.Answer("Relist?", MessageAnswer::kYes);
  Main().chkDisableOutputToFile.PerformClick();
  ExpectMessage(OnlyMessage(), "Relist words (so as to write to file)?", "Relist?",
                MessageIcon::kQuestion, MessageButtons::kYesNo);
  EXPECT_EQ(TextOf(path), kFileList);
  EXPECT_EQ(Output(), kBoxList);
  ExpectIdle();
}

TEST_F(OutputFileTest, NoAtThatOfferWritesNothing) {
  ListTo(path);
  Main().chkDisableOutputToFile.SetChecked(true);
  CountTwoWords();
  desktop.Answer("Relist?", MessageAnswer::kNo);
  Main().chkDisableOutputToFile.PerformClick();
  EXPECT_FALSE(fs::exists(path));
  EXPECT_EQ(Output(), kBoxList);
}

TEST_F(OutputFileTest, SwitchingItOffOffersNothing) {
  ListTo(path);
  CountTwoWords();
  Main().chkDisableOutputToFile.PerformClick();
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(OutputFileTest, WithoutAPathNothingIsOffered) {
  Main().chkDisableOutputToFile.SetChecked(true);
  CountTwoWords();
  Main().chkDisableOutputToFile.PerformClick();
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(OutputFileTest, WithoutACompleteCountNothingIsOffered) {
  ListTo(path);
  Main().chkDisableOutputToFile.SetChecked(true);
  Main().chkDisableOutputToFile.PerformClick();
  Main().chkDisableOutputToFile.PerformClick();
  desktop.Answer("Counting interrupted", MessageAnswer::kYes);
  StopAtYield(1);
  CountTwoWords();
  desktop.ForgetQuestions();
  Main().chkDisableOutputToFile.PerformClick();
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(OutputFileTest, SwitchingItOnDuringARunOffersNothing) {
  CountTwoWords();
  ListTo(path);
  for (const int yield : {1, 3, 5}) {
    DoNotWarn();
    AtYield(yield, [this] {
      Main().chkDisableOutputToFile.SetChecked(true);
      Main().chkDisableOutputToFile.SetChecked(false);
    });
    CountTwoWords();
    EXPECT_EQ(TextOf(path), kFileList);
  }
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(OutputFileTest, SwitchingItOnMovesTheFocus) {
  Main().Show();
  Main().optOnClipboard.SetValue(true);
  Main().chkDisableOutputToFile.PerformClick();
  EXPECT_EQ(Main().Focused(), &Main().cmdCountWords);
}

// What can go wrong.

TEST_F(OutputFileTest, AFullDiskIsReported) {
  DoNotWarn();
  ListTo("/dev/full");
  CountTwoWords();
  ExpectProblem("Error 61: Disk full");
  EXPECT_EQ(Output(), "");
}

TEST_F(OutputFileTest, ADiskThatIsFullInTheMiddleOfTheListIsReported) {
  DoNotWarn();
  ListTo("/dev/full");
  CountFile(folder.Write("a.txt", "cat\n" + ManyWords(20'000)));
  ExpectProblem("Error 61: Disk full");
}

TEST_F(OutputFileTest, AMissingFolderIsReported) {
  ListTo(folder / "nowhere/out.txt");
  CountTwoWords();
  ExpectProblem("Error 76: Path not found\r\n" + Main().txbFile[1].Text());
  EXPECT_FALSE(Has(Output(), kFileHeader));
}

TEST_F(OutputFileTest, AFileInPlaceOfAFolderIsReported) {
  static_cast<void>(folder.Write("file", "text"));
  ListTo(folder / "file/out.txt");
  CountTwoWords();
  ExpectProblem("Error 76: Path not found\r\n" + Main().txbFile[1].Text());
}

TEST_F(OutputFileTest, AFolderInPlaceOfTheFileIsReported) {
  ListTo(folder.Make("out.txt"));
  CountTwoWords();
  ExpectProblem("Error 75: Path/File access error\r\n" + path);
  EXPECT_TRUE(fs::is_directory(path));
}

TEST_F(OutputFileTest, AFileThatMayNotBeWrittenIsReportedAndLeft) {
  DoNotWarn();
  ListTo(folder.Write("out.txt", "precious"));
  fs::permissions(path, fs::perms(0444));
  EXPECT_EQ(AsOrdinaryUser([this] {
              CountTwoWords();
              ExpectProblem("Error 70: Permission denied\r\n" + path);
              return HasFailure() ? 1 : 0;
            }),
            0);
  EXPECT_EQ(ContentsOf(path), "precious");
}

TEST_F(OutputFileTest, APlaceThatTakesNoFilesIsReported) {
  ListTo("/proc/quillomat.txt");
  CountTwoWords();
  ASSERT_EQ(desktop.Messages().size(), 1U);
  ExpectProblem(OnlyMessage().text);
  EXPECT_TRUE(OnlyMessage().text.starts_with("Error 7"));
}

TEST_F(OutputFileTest, AnErrorInTheMiddleLeavesTheFileAsItWas) {
  DoNotWarn();
  ListTo(folder.Write("out.txt", "the old list"));
  AtYield(3, [] { throw RunTimeError(RunTimeErrorNumber::kDeviceIo); });
  CountTwoWords();
  ExpectProblem("Error 57: Device I/O error");
  EXPECT_EQ(ContentsOf(path), "the old list");
}

TEST_F(OutputFileTest, AnErrorInTheTextBoxTellsThatTheFileIsWritten) {
  ListTo(path);
  AtYield(5, [] { throw RunTimeError(RunTimeErrorNumber::kDeviceIo); });
  CountTwoWords();
  EXPECT_EQ(OnlyMessage().text,
            "Error 57: Device I/O error\r\nResults have been written to the output file.");
  EXPECT_EQ(TextOf(path), kFileList);
  ExpectIdle();
}

TEST_F(OutputFileTest, AFileOfAnEarlierListIsNotSpokenOf) {
  ListTo(path);
  CountTwoWords();
  Main().chkDisableOutputToFile.SetChecked(true);
  AtYield(1, [] { throw RunTimeError(RunTimeErrorNumber::kDeviceIo); });
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(OnlyMessage().text, "Error 57: Device I/O error");
}

TEST_F(OutputFileTest, AfterAProblemTheListCanBeMadeElsewhere) {
  ListTo(folder / "nowhere/out.txt");
  CountTwoWords();
  ListTo(path);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(TextOf(path), kFileList);
  EXPECT_EQ(Output(), kBoxList);
}

TEST_F(OutputFileTest, AProblemWithAListMadeAgainLeavesTheWindowIdle) {
  CountTwoWords();
  ListTo(folder / "nowhere/out.txt");
  ChooseOrder(WordOrder::kAlphabetical);
  ExpectProblem("Error 76: Path not found\r\n" + Main().txbFile[1].Text());
  EXPECT_EQ(Output(), kBoxList);
}

}  // namespace
}  // namespace quillomat
