// Stop: while text is scanned, and while words are listed into a file or into the text box.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/count_fixture.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kHeader = "Word (longest has 5 characters)";

class CountRunStop : public CountFixture {
 protected:
  CountRunStop() { ListWordsOnly(); }

  void AnswerToList(MessageAnswer answer) { desktop.Answer("Counting interrupted", answer); }

  /// Stops a count of five words of the clipboard behind the first `words`.
  void StopTheScanBehind(int words, MessageAnswer list) {
    AnswerToList(list);
    StopAtYield(words);
    CountClipboard("one two three four five");
  }
};

// While text is scanned.

TEST_F(CountRunStop, TheUserIsAskedWhetherToListWhatWasFound) {
  StopTheScanBehind(2, MessageAnswer::kNo);
  ExpectMessage(OnlyMessage(),
                "The operation was stopped before all words were counted.\r\n"
                "Do you wish to list the words which were found?",
                "Counting interrupted", MessageIcon::kQuestion, MessageButtons::kYesNo);
}

TEST_F(CountRunStop, TheKeyThatStopsDoesNotThrowAwayWhatWasFound) {
  StopTheScanBehind(2, MessageAnswer::kNo);
  EXPECT_TRUE(OnlyMessage().noLoses);
  CountFile(folder / "missing.txt");
  EXPECT_FALSE(desktop.Messages().back().noLoses);
}

TEST_F(CountRunStop, WhatIsNotToBeListedIsNotCountedUpEither) {
  StopTheScanBehind(2, MessageAnswer::kNo);
  for (const Label* label : {&Main().lblNumberOfWords, &Main().lblNumWordsExcluded,
                             &Main().lblNumOccurrences, &Main().lblTotalNumOccurrences}) {
    EXPECT_FALSE(label->Visible()) << label->Name();
  }
}

TEST_F(CountRunStop, TheScanEndsBehindTheWordAtHand) {
  StopTheScanBehind(2, MessageAnswer::kNo);
  EXPECT_EQ(StoredWords(), "one two");
  EXPECT_EQ(Output(), "one two \r\n\r\nStopped with 2 words found.");
}

#ifndef _WIN32
TEST_F(CountRunStop, WhatWasFoundMeetsAFullDiskAndCanBeListedElsewhere) {
  DoNotWarn();
  ListTo("/dev/full");
  StopTheScanBehind(2, MessageAnswer::kYes);
  EXPECT_THAT(desktop.Titles(), ElementsAre("Counting interrupted", "Problem"));
  EXPECT_EQ(desktop.Messages().back().text, "Error 61: Disk full");
  EXPECT_FALSE(State().Busy());
  const std::string list = folder / "list.txt";
  ListTo(list);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(TextOf(list), "Word (longest has 3 characters)\none\ntwo\n");
}

TEST_F(CountRunStop, AListThatIsStoppedOnAFullDiskIsATerminatedOne) {
  DoNotWarn();
  CountClipboard("one two three four five");
  ListTo("/dev/full");
  StopAtYield(2);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_EQ(Output(), "\r\nOutput to file was terminated.");
  EXPECT_FALSE(State().Busy());
}
#endif

TEST_F(CountRunStop, OneWordFoundIsSingular) {
  StopTheScanBehind(1, MessageAnswer::kNo);
  EXPECT_EQ(Output(), "one \r\n\r\nStopped with 1 word found.");
}

TEST_F(CountRunStop, NoWordFoundIsPluralAndNeedsNoLineBreaks) {
  TypeWords(WordListKind::kIgnore, "one");
  StopTheScanBehind(1, MessageAnswer::kNo);
  EXPECT_EQ(StoredWords(), "");
  EXPECT_EQ(Output(), "Stopped with 0 words found.");
}

TEST_F(CountRunStop, AnOutputWithoutWordsNeedsNoLineBreaks) {
  Main().chkSuppressWords.SetChecked(true);
  StopTheScanBehind(3, MessageAnswer::kNo);
  EXPECT_EQ(Output(), "Stopped with 3 words found.");
}

TEST_F(CountRunStop, TheNumberOfWordsFoundIsNotGrouped) {
  Main().chkSuppressWords.SetChecked(true);
  AnswerToList(MessageAnswer::kNo);
  StopAtYield(1'500);
  CountClipboard(ManyWords(2'000));
  EXPECT_EQ(Output(), "Stopped with 1500 words found.");
}

TEST_F(CountRunStop, NoListsNothingAndTheCommandIsItselfAgain) {
  StopTheScanBehind(2, MessageAnswer::kNo);
  EXPECT_FALSE(Words().completeRun);
  EXPECT_FALSE(Words().listAfterStop);
  EXPECT_FALSE(Words().blnWordsGot);
  EXPECT_FALSE(Main().lblNumOccurrences.Visible());
  ExpectIdle();
}

TEST_F(CountRunStop, AfterNoAChangeOfTheListListsNothing) {
  StopTheScanBehind(2, MessageAnswer::kNo);
  desktop.ForgetQuestions();
  const std::string before = Output();
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), before);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(CountRunStop, NoAfterACompleteCountDoesNotBringItsListBack) {
  CountClipboard("hen");
  StopTheScanBehind(2, MessageAnswer::kNo);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_FALSE(Has(Output(), kHeader));
}

TEST_F(CountRunStop, YesListsTheWordsFoundWithoutTotals) {
  StopTheScanBehind(3, MessageAnswer::kYes);
  EXPECT_EQ(Output(), kHeader + "\r\none\r\nthree\r\ntwo\r\n");
  EXPECT_EQ(Main().lblNumberOfWords.Caption(), "Number of words in this list: 3");
  EXPECT_EQ(Main().lblNumWordsExcluded.Caption(), "Number of words excluded: 0");
  EXPECT_EQ(Main().lblNumOccurrences.Caption(), "");
  EXPECT_EQ(Main().lblTotalNumOccurrences.Caption(), "");
  EXPECT_TRUE(Words().listAfterStop);
  EXPECT_FALSE(Words().completeRun);
  EXPECT_TRUE(Words().blnWordsGot);
  ExpectIdle();
}

TEST_F(CountRunStop, YesWithNothingFoundSaysSo) {
  TypeWords(WordListKind::kIgnore, "one");
  StopTheScanBehind(1, MessageAnswer::kYes);
  EXPECT_EQ(Output(), "No words satisfying the conditions were found.");
  ExpectIdle();
}

TEST_F(CountRunStop, YesListsIntoTheOutputFileToo) {
  ListTo(folder / "out.txt");
  StopTheScanBehind(2, MessageAnswer::kYes);
  EXPECT_EQ(TextOf(folder / "out.txt"), "Word (longest has 3 characters)\none\ntwo\n");
}

TEST_F(CountRunStop, ALaterListTellsThatItIsNotComplete) {
  StopTheScanBehind(3, MessageAnswer::kYes);
  desktop.ForgetQuestions();
  ChooseFormat(DisplayFormat::kWordFrequency);
  EXPECT_TRUE(Has(Output(), "three"));
  ExpectMessage(OnlyMessage(),
                "The count was interrupted before all of the text had been read,\r\n"
                "so the list holds only the words found until then.",
                "Incomplete list", MessageIcon::kInformation);
}

TEST_F(CountRunStop, TheNextCompleteCountIsCompleteAgain) {
  StopTheScanBehind(3, MessageAnswer::kYes);
  CountClipboard("cat");
  desktop.ForgetQuestions();
  ChooseFormat(DisplayFormat::kWordFrequency);
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_TRUE(Words().completeRun);
}

TEST_F(CountRunStop, ARefusedRunTakesTheIncompleteListAway) {
  StopTheScanBehind(3, MessageAnswer::kYes);
  CountFile("");
  desktop.ForgetQuestions();
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), "");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(CountRunStop, AClickBehindTheLastWordIsAnInterruptionToo) {
  StopTheScanBehind(5, MessageAnswer::kNo);
  EXPECT_TRUE(Output().ends_with("Stopped with 5 words found."));
}

TEST_F(CountRunStop, SeveralClicksAreOne) {
  AtYield(2, [this] {
    Count();
    Count();
    Count();
    EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
  });
  AnswerToList(MessageAnswer::kNo);
  CountClipboard("one two three");
  EXPECT_THAT(desktop.Titles(), ElementsAre("Counting interrupted"));
  EXPECT_EQ(StoredWords(), "one two");
  ExpectIdle();
}

TEST_F(CountRunStop, AClickSetsTheFlagAndNothingElse) {
  AtYield(2, [this] {
    const std::string before = Output();
    Count();
    EXPECT_EQ(program.State().Phase(), RunPhase::kStopping);
    EXPECT_EQ(Output(), before);
    ExpectRunning();
  });
  AnswerToList(MessageAnswer::kNo);
  CountClipboard("one two three");
  EXPECT_EQ(program.State().Phase(), RunPhase::kIdle);
}

TEST_F(CountRunStop, AFileIsLeftBehindTheWordAtHand) {
  AnswerToList(MessageAnswer::kYes);
  StopAtYield(4);  // two words, the end of the line, the third word
  CountFile(folder.Write("a.txt", "one two\nthree four\nfive"));
  EXPECT_EQ(Output(), kHeader + "\r\none\r\nthree\r\ntwo\r\n");
  ExpectIdle();
}

TEST_F(CountRunStop, AfterAStopTheNextCountReadsAll) {
  StopTheScanBehind(2, MessageAnswer::kNo);
  CountClipboard("one two three");
  EXPECT_EQ(Output(), kHeader + "\r\none\r\nthree\r\ntwo\r\n");
}

// While words are listed into the text box.

TEST_F(CountRunStop, AListInTheTextBoxEndsBehindTheWordAtHand) {
  StopAtYield(5);
  CountClipboard("one two three");
  EXPECT_EQ(Output(), kHeader + "\r\none\r\nthree\r\n\r\nListing stopped.\r\n");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  ExpectIdle();
}

TEST_F(CountRunStop, AStoppedListLeavesTheCountComplete) {
  StopAtYield(5);
  CountClipboard("one two three");
  EXPECT_TRUE(Words().completeRun);
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), kHeader + "\r\none\r\nthree\r\ntwo\r\n");
}

TEST_F(CountRunStop, AListOfWordsFoundUntilAStopCanBeStoppedToo) {
  AnswerToList(MessageAnswer::kYes);
  StopAtYield(3);
  StopAtYield(4);
  CountClipboard("one two three four");
  EXPECT_EQ(Output(), kHeader + "\r\none\r\n\r\nListing stopped.\r\n");
  ExpectIdle();
}

TEST_F(CountRunStop, AStoppedListOfWordsWithCommasKeepsItsLastComma) {
  ChooseFormat(DisplayFormat::kWordCommas);
  StopAtYield(5);
  CountClipboard("one two three");
  EXPECT_EQ(Output(), "one, three, \r\nListing stopped.\r\n");
}

TEST_F(CountRunStop, ARepeatedListCanBeStoppedAsWell) {
  CountClipboard("one two three");
  AtYield(2, [this] {
    EXPECT_EQ(Main().cmdCountWords.Caption(), "Stop");
    EXPECT_FALSE(Main().cboWordOrder.Enabled());
    EXPECT_FALSE(Main().cboDisplayFormat.Enabled());
    Count();
  });
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(Output(), kHeader + "\r\none\r\nthree\r\n\r\nListing stopped.\r\n");
  EXPECT_EQ(StoredWords(), "one three two");
  ExpectIdle();
}

// While words are listed into a file.

TEST_F(CountRunStop, AListThatIsStoppedLeavesItsFileAsItWasAndIsNotRepeatedInTheWindow) {
  DoNotWarn();
  ListTo(folder.Write("out.txt", "an old list"));
  StopAtYield(5);
  CountClipboard("one two three");
  EXPECT_EQ(TextOf(folder / "out.txt"), "an old list");
  EXPECT_EQ(Output(), "\r\nOutput to file was terminated.");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  ExpectIdle();
}

TEST_F(CountRunStop, WhileAFileIsWrittenOnlyStopCanBeUsed) {
  ListTo(folder / "out.txt");
  AtYield(4, [this] { ExpectRunning(); });
  CountClipboard("one two three");
  ExpectIdle();
}

TEST_F(CountRunStop, StopInTheTextBoxLeavesTheFileWhole) {
  ListTo(folder / "out.txt");
  StopAtYield(7);  // three words read, three written, the first shown
  CountClipboard("one two three");
  EXPECT_EQ(TextOf(folder / "out.txt"), kHeader + "\none\nthree\ntwo\n");
  EXPECT_EQ(Output(), kHeader + "\r\none\r\n\r\nListing stopped.\r\n");
}

TEST_F(CountRunStop, AfterAStopInTheFileTheListCanBeMadeAnew) {
  DoNotWarn();
  ListTo(folder / "out.txt");
  StopAtYield(5);
  CountClipboard("one two three");
  ChooseOrder(WordOrder::kAlphabetical);
  EXPECT_EQ(TextOf(folder / "out.txt"), kHeader + "\none\nthree\ntwo\n");
  EXPECT_EQ(Output(), kHeader + "\r\none\r\nthree\r\ntwo\r\n");
}

}  // namespace
}  // namespace quillomat
