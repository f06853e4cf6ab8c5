// The count command and one run of it, from the checks to the list.
#include "app/count/count_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"
#include "base/run_time_error.h"

namespace quillomat {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kNotice = "Processing . . . ";

class CountRunTest : public CountFixture {
 protected:
  /// Clicks whatever a hand finds to click, but for Stop and Quit, and for the check boxes of the
  /// panel, which the filters are to find as they are when the scan is over.
  void ClickEverything() {
    for (Form* form : {static_cast<Form*>(&Main()), static_cast<Form*>(&Panel())}) {
      for (Control* control : form->Controls()) Click(*control);
    }
  }

 private:
  void Click(Control& control) {
    if (&control == &Main().cmdCountWords || &control == &Main().cmdQuit) return;
    if (control.BaseName() == "cmdClearCheckboxes") return;
    if (auto* command = control.As<CommandButton>()) command->PerformClick();
    if (auto* option = control.As<OptionButton>()) option->PerformClick();
    if (control.Owner().Name() == "frmMain") {
      if (auto* box = control.As<CheckBox>()) box->PerformClick();
    }
  }
};

// The states of the window.

TEST_F(CountRunTest, TheWindowIsIdleAtStartAndAfterARun) {
  ExpectIdle();
  CountClipboard("cat");
  ExpectIdle();
}

TEST_F(CountRunTest, WhileTextIsScannedOnlyStopCanBeUsed) {
  AtYield(1, [this] { ExpectRunning(); });
  CountClipboard("cat dog");
  ExpectIdle();
}

TEST_F(CountRunTest, WhileWordsAreListedOnlyStopCanBeUsed) {
  AtYield(3, [this] { ExpectRunning(); });
  CountClipboard("cat dog");
  ExpectIdle();
}

TEST_F(CountRunTest, QuitAndCopyAndSuppressAreThereDuringARun) {
  AtYield(1, [this] {
    EXPECT_TRUE(Main().cmdQuit.Enabled());
    EXPECT_TRUE(Main().cmdCopyToClipboard.Enabled());
    EXPECT_TRUE(Main().chkSuppressWords.Enabled());
  });
  CountClipboard("cat dog");
}

TEST_F(CountRunTest, AViewerThatWasNotFoundStaysOutOfReach) {
  ProgramParts parts({Main(), Panel(), program.frmHelp, program.frmExport}, desktop,
                     std::chrono::steady_clock::now);
  for (const std::string viewer : {"", "/usr/bin/viewer"}) {
    parts.controls.SetClipboardViewer(viewer);
    EXPECT_EQ(Main().cmdClipboardViewer.Enabled(), !viewer.empty());
    {
      const PhaseGuard counting(parts.run, RunPhase::kCounting);
      EXPECT_FALSE(Main().cmdClipboardViewer.Enabled());
    }
    EXPECT_EQ(Main().cmdClipboardViewer.Enabled(), !viewer.empty());
  }
}

TEST_F(CountRunTest, EverySourceReturnsToIdleAfterARefusal) {
  CountClipboard("");
  ExpectIdle();
  CountFile("");
  ExpectIdle();
  CountFolder("");
  ExpectIdle();
}

// Nothing happens within a run but Stop.

TEST_F(CountRunTest, ClicksDuringTheScanChangeNothing) {
  CountClipboard("cat dog cat");
  const std::string undisturbed = Output();
  AtYield(2, [this] { ClickEverything(); });
  CountClipboard("cat dog cat");
  EXPECT_EQ(Output(), undisturbed);
  EXPECT_EQ(StoredWords(), "cat*2 dog");
  EXPECT_TRUE(Main().optOnClipboard.Value());
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(CountRunTest, ClicksDuringTheListChangeNothing) {
  CountClipboard("cat dog cat");
  const std::string undisturbed = Output();
  AtYield(4, [this] { ClickEverything(); });
  CountClipboard("cat dog cat");
  EXPECT_EQ(Output(), undisturbed);
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(CountRunTest, ChoicesSetDuringARunDoNotListWithinIt) {
  CountClipboard("cat dog cat");
  for (const int yield : {2, 4}) {
    WatchOutput();
    AtYield(yield, [this] {
      const std::string before = Output();
      ChooseOrder(WordOrder::kAlphabetical);
      ChooseFormat(DisplayFormat::kWord);
      ChooseFormat(DisplayFormat::kWordFileList);
      ChooseFormat(DisplayFormat::kWord);
      Main().chkDisableOutputToFile.SetChecked(true);
      Main().chkDisableOutputToFile.SetChecked(false);
      EXPECT_EQ(Output(), before);
      EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
    });
    CountClipboard("cat dog cat");
    ChooseFormat(DisplayFormat::kRankFrequencyWord);
    ExpectIdle();
  }
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(CountRunTest, ChoicesSetDuringTheScanHoldForItsList) {
  AtYield(2, [this] { ChooseFormat(DisplayFormat::kWord); });
  CountClipboard("dog cat dog");
  EXPECT_EQ(Output(), "Word (longest has 3 characters)\r\ndog\r\ncat\r\n");
}

TEST_F(CountRunTest, ANewClipboardTextDuringTheScanIsNotRead) {
  AtYield(1, [this] { desktop.SetClipboard("hen"); });
  CountClipboard("cat dog");
  EXPECT_EQ(StoredWords(), "cat dog");
}

TEST_F(CountRunTest, TheListIsNotReadFromFilesChangedDuringTheRun) {
  const std::string output = folder / "out.txt";
  ListTo(output);
  AtYield(3, [this] { ListTo(folder / "other.txt"); });
  ListWordsOnly();
  CountClipboard("cat dog");
  EXPECT_EQ(TextOf(output), "Word (longest has 3 characters)\ncat\ndog\n");
  EXPECT_EQ(ContentsOf(folder / "other.txt"), "");
}

TEST_F(CountRunTest, NoCountIsStartedWhileAWordsFileIsRead) {
  desktop.SetClipboard("hen");
  Main().optOnClipboard.SetValue(true);
  AtYield(2, [this] { Count(); });
  desktop.AnswerFile(folder.Write("words.txt", "cat dog cow"));
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_EQ(program.Settings().lists.IgnoreList.Count(), 3);
  EXPECT_THAT(desktop.Titles(),
              ElementsAre("Specify file containing words to ignore", "Words loaded"));
}

TEST_F(CountRunTest, TheLanguageMayBeSwitchedDuringARun) {
  AtYield(1, [this] {
    Main().cmdLanguage.PerformClick();
    EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
  });
  CountClipboard("cat dog");
  EXPECT_EQ(Main().cmdCountWords.Caption(), "Worth\u00E4ufigkeiten ermitteln");
  CountClipboard("hen");
  EXPECT_EQ(StoredWords(), "hen");
}

TEST_F(CountRunTest, QuittingDuringTheScanEndsTheRunFirstAndAsksNothing) {
  Panel().chkSaveStateOnQuit.SetChecked(false);
  int ended = 0;
  program.Ended.Connect([&] {
    EXPECT_FALSE(program.State().Busy());
    ++ended;
  });
  AtYield(2, [this] {
    Main().cmdQuit.PerformClick();
    EXPECT_FALSE(program.HasEnded());
  });
  CountClipboard("cat dog cow");
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(StoredWords(), "cat dog");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
}

TEST_F(CountRunTest, ClosingTheWindowDuringTheListEndsTheRunFirst) {
  Panel().chkSaveStateOnQuit.SetChecked(false);
  AtYield(4, [this] {
    Main().CloseRequested.Fire();
    EXPECT_FALSE(program.HasEnded());
  });
  CountClipboard("cat dog cow");
  EXPECT_TRUE(program.HasEnded());
  EXPECT_TRUE(Output().ends_with("\r\nListing stopped.\r\n"));
}

// Before the source is read.

TEST_F(CountRunTest, ChecksComeInOrderAndTheFirstFaultEndsTheRun) {
  AllowComments("", "");
  TypeOnly("txt");
  TypeNot("txt");
  desktop.ForgetQuestions();
  CountFile("");
  EXPECT_TRUE(Has(OnlyMessage().text, "start-comment marker must be non-empty"));
  Panel().chkAllowCommentMarkers.SetChecked(false);
  desktop.ForgetQuestions();
  CountFile("");
  EXPECT_EQ(OnlyMessage().text, "File extension 'txt' is both included and excluded.");
  TypeNot("");
  desktop.ForgetQuestions();
  CountFile("");
  EXPECT_EQ(OnlyMessage().text, "Input file not specified.");
  ExpectIdle();
}

TEST_F(CountRunTest, FileExtensionsDoNotConcernTheClipboard) {
  TypeOnly("txt");
  TypeNot("txt");
  desktop.ForgetQuestions();
  CountClipboard("cat");
  EXPECT_EQ(StoredWords(), "cat");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(CountRunTest, FileExtensionsConcernASingleFileToo) {
  TypeOnly("t?t");
  desktop.ForgetQuestions();
  CountFile(folder.Write("a.txt", "cat"));
  EXPECT_EQ(OnlyMessage().title, "Invalid input");
  EXPECT_EQ(StoredWords(), "");
}

TEST_F(CountRunTest, ARefusalEmptiesTheOutputAndHidesTheNumbersOfTheLastCount) {
  CountClipboard("cat");
  CountFile("");
  EXPECT_EQ(Output(), "");
  EXPECT_FALSE(Main().lblNumberOfWords.Visible());
  EXPECT_FALSE(Main().lblNumWordsExcluded.Visible());
  EXPECT_FALSE(Main().lblNumOccurrences.Visible());
  EXPECT_FALSE(Main().lblTotalNumOccurrences.Visible());
}

TEST_F(CountRunTest, AfterARefusalTheWordsOfTheLastCountCanStillBeListed) {
  CountClipboard("dog cat dog");
  CountFile("");
  ListWordsOnly();
  EXPECT_EQ(Output(), "Word (longest has 3 characters)\r\ndog\r\ncat\r\n");
}

TEST_F(CountRunTest, ColumnsStartNarrowInEveryRun) {
  CountClipboard(std::string(20, 'a'));
  CountClipboard("cat");
  EXPECT_EQ(Output(),
            "   Rank    Freq  Word (longest has 3 characters)\r\n      1       1  cat\r\n");
}

TEST_F(CountRunTest, EachRunStartsCountingAtNought) {
  CountClipboard("cat cat dog");
  CountClipboard("cat");
  EXPECT_EQ(Main().lblTotalNumOccurrences.Caption(), "Total number of instances of words: 1");
}

TEST_F(CountRunTest, ABoxThatWasFullTakesTheWordsOfTheNextRun) {
  CountClipboard(ManyWords(4'500));
  desktop.ForgetQuestions();
  program.Lister().ReportProblem(7, "");
  ASSERT_TRUE(program.Output().IsFull());
  desktop.ForgetQuestions();
  WatchOutput();
  CountClipboard("cat");
  EXPECT_TRUE(WasShown("cat "));
}

TEST_F(CountRunTest, MarkersForcedByAFileHoldForThatRunOnly) {
  CountFile(folder.Write("a.html", "<b>cat</b>"));
  EXPECT_EQ(StoredWords(), "cat");
  CountClipboard("<b>cat</b>");
  EXPECT_EQ(StoredWords(), "b*2 cat");
}

TEST_F(CountRunTest, TypedCountOnlyWordsAloneAreCountedAndNoFilterActs) {
  CountClipboard("xiv cat");
  EXPECT_EQ(Words().totals.NumExcludedWords, 1);
  TypeWords(WordListKind::kCountOnly, "xiv");
  CountClipboard("xiv cat");
  EXPECT_EQ(StoredWords(), "xiv");
  EXPECT_EQ(Words().totals.NumExcludedWords, 0);
  EXPECT_EQ(Words().totals.NumIncludedWords, 1);
}

TEST_F(CountRunTest, CountOnlyWordsOfAFileAreEnoughToo) {
  desktop.AnswerFile(folder.Write("words.txt", "xiv"));
  Panel().cmdSelectWordsFile[1].PerformClick();
  CountClipboard("xiv cat");
  EXPECT_EQ(StoredWords(), "xiv");
  EXPECT_TRUE(program.Settings().settings.CountOnlyMode);
}

TEST_F(CountRunTest, EmptiedCountOnlyWordsCountAllAgain) {
  TypeWords(WordListKind::kCountOnly, "xiv");
  CountClipboard("xiv cat");
  TypeWords(WordListKind::kCountOnly, "");
  CountClipboard("xiv cat");
  EXPECT_EQ(StoredWords(), "cat xiv");
  EXPECT_FALSE(program.Settings().settings.CountOnlyMode);
}

// Between the scan and the list.

TEST_F(CountRunTest, TheProcessingNoticeFollowsAShortOutput) {
  WatchOutput();
  CountClipboard("cat dog");
  EXPECT_TRUE(WasShown("cat dog \r\n\r\n" + kNotice));
}

TEST_F(CountRunTest, TheProcessingNoticeStandsAloneInAnEmptyOutput) {
  Main().chkSuppressWords.SetChecked(true);
  WatchOutput();
  CountClipboard("cat dog");
  EXPECT_THAT(Shown(), Contains(kNotice));
}

TEST_F(CountRunTest, AnOutputOf99CharactersIsKeptBeforeTheNotice) {
  const std::string word(98, 'a');
  WatchOutput();
  CountClipboard(word);
  EXPECT_TRUE(WasShown(word + " \r\n\r\n" + kNotice));
}

TEST_F(CountRunTest, AnOutputOf100CharactersIsNotKept) {
  WatchOutput();
  CountClipboard(std::string(99, 'a'));
  EXPECT_THAT(Shown(), Contains(kNotice));
}

TEST_F(CountRunTest, AnOutputIsMeasuredInCharactersNotBytes) {
  std::string accented;
  for (int i = 0; i < 90; ++i) accented += "\u00E9";
  WatchOutput();
  CountClipboard(accented);
  EXPECT_TRUE(WasShown(accented + " \r\n\r\n" + kNotice));
}

TEST_F(CountRunTest, TheFiltersRunBehindTheNotice) {
  Main().chkSuppressWords.SetChecked(true);
  WatchOutput();
  CountClipboard("cat dog");
  EXPECT_THAT(Shown(), Contains(kNotice + ". . . "));
}

TEST_F(CountRunTest, RankingShowsAStepForEveryHundredFrequencies) {
  Main().chkSuppressWords.SetChecked(true);
  WatchOutput();
  std::string text;
  for (int i = 0; i < 250; ++i) text += "cat ";
  CountClipboard(text);
  EXPECT_THAT(Shown(), Contains(kNotice + ". . . . . . . "));
}

TEST_F(CountRunTest, RankingShowsNoStepBelowAHundred) {
  Main().chkSuppressWords.SetChecked(true);
  std::string text;
  for (int i = 0; i < 99; ++i) text += "cat ";
  WatchOutput();
  CountClipboard(text);
  EXPECT_FALSE(WasShown(kNotice + ". . . ."));
  WatchOutput();
  CountClipboard(text + "cat");
  EXPECT_TRUE(WasShown(kNotice + ". . . . . "));
}

TEST_F(CountRunTest, FiltersActOnTheListAndNotOnTheStore) {
  Panel().chkIgnoreShortWords.SetChecked(true);
  Panel().cboShortWordSize.SetListIndex(2);
  CountClipboard("cat mouse");
  EXPECT_EQ(StoredWords(), "cat mouse");
  EXPECT_FALSE(Has(Output(), "cat"));
}

TEST_F(CountRunTest, AListStandsAfterARun) {
  EXPECT_FALSE(Words().blnWordsGot);
  CountClipboard("cat");
  EXPECT_TRUE(Words().blnWordsGot);
  EXPECT_TRUE(Words().completeRun);
  EXPECT_FALSE(Words().listAfterStop);
}

TEST_F(CountRunTest, ARunWithoutAnyScannableFileListsNothing) {
  static_cast<void>(folder.Write("picture.gif", "cat"));
  CountFolder(folder.Path());
  ExpectMessage(OnlyMessage(), "No scanable files were found in this folder.", "No files found",
                MessageIcon::kInformation);
  EXPECT_FALSE(Words().blnWordsGot);
  EXPECT_FALSE(Has(Output(), "Word"));
  ExpectIdle();
}

TEST_F(CountRunTest, AnErrorInTheListIsReportedAndTheWindowIsIdleAgain) {
  AtYield(4, [] { throw RunTimeError(RunTimeErrorNumber::kOverflow); });
  CountClipboard("cat dog cow");
  ExpectMessage(OnlyMessage(), "Error 6: Overflow", "Problem", MessageIcon::kExclamation);
  EXPECT_EQ(Main().txbOutput.SelStart(), 0U);
  ExpectIdle();
}

// The focus.

TEST_F(CountRunTest, TheFocusGoesToWhatTheUserNeedsNext) {
  Main().Show();
  CountFile("");
  EXPECT_EQ(Main().Focused(), &Main().cmdFile[0]);
  CountFolder("");
  EXPECT_EQ(Main().Focused(), &Main().cmdFolder);
  CountFile(folder.Write("a.txt", "cat"));
  EXPECT_EQ(Main().Focused(), &Main().cmdCountWords);
}

TEST_F(CountRunTest, ChoosingASourceMovesTheFocus) {
  Main().Show();
  Main().optOnClipboard.PerformClick();
  EXPECT_EQ(Main().Focused(), &Main().cmdCountWords);
  Main().optInFile.PerformClick();
  EXPECT_EQ(Main().Focused(), &Main().cmdFile[0]);
  Main().optFolder.PerformClick();
  EXPECT_EQ(Main().Focused(), &Main().cmdFolder);
}

TEST_F(CountRunTest, ChoosingTheClipboardEmptiesTheOutputTheOthersKeepIt) {
  CountClipboard("cat");
  const std::string list = Output();
  Main().optInFile.PerformClick();
  EXPECT_EQ(Output(), list);
  Main().optFolder.PerformClick();
  EXPECT_EQ(Output(), list);
  Main().optOnClipboard.PerformClick();
  EXPECT_EQ(Output(), "");
  ExpectIdle();
}

}  // namespace
}  // namespace quillomat
