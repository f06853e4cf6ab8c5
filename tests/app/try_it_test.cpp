// "Try it" on the panel: a line of the user's own, and what the settings make of it.
#include "app/explain/try_it.h"

#include <gmock/gmock.h>

#include "base/character_set.h"
#include "support/program_fixture.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::Not;

class TryItOnPanel : public ProgramFixture {
 protected:
  TryItOnPanel() { Main().cmdSetParameters.PerformClick(); }

  const std::string& Outcome() { return Panel().txbTried.Text(); }

  const std::string& Try(const std::string& line) {
    Panel().txbTryIt.EnterText(line);
    return Outcome();
  }
};

TEST_F(TryItOnPanel, ShowsAnExampleAtTheFirstStart) {
  EXPECT_THAT(Panel().txbTryIt.Text(), HasSubstr("well-known"));
  EXPECT_THAT(Outcome(),
              HasSubstr("Counted: don, skip, the, caf\u00E9, well-known, edition, \u00F3d\r\n"));
  EXPECT_THAT(Outcome(), HasSubstr("XIV (Roman numeral < XL)"));
}

TEST_F(TryItOnPanel, ShowsWhatIsCountedLeftOutAndCut) {
  EXPECT_EQ(Try("Isn't the XIV the end?"),
            "Counted: the, end\r\n"
            "Left out: Isn, t (taken for the rest of a contraction); XIV (Roman numeral < XL)\r\n"
            "Cut: Isn't (at ': not allowed in words)");
  EXPECT_EQ(Try("..."), "There is no word in it.");
}

TEST_F(TryItOnPanel, FollowsEverySetting) {
  Try("Don't let cats in \u0142\u00F3d\u017A //out");
  Panel().chkAllowWordsWithApostrophes.PerformClick();
  EXPECT_THAT(Outcome(), HasSubstr("Counted: don't, let"));
  Panel().chkDropFinalS.PerformClick();
  EXPECT_THAT(Outcome(), HasSubstr("cat (without its final s)"));
  Panel().cboLetters.PerformChoice(1);
  EXPECT_THAT(Outcome(), HasSubstr("\u0142\u00F3d\u017A, out"));
  Panel().chkAllowCommentMarkers.PerformClick();
  EXPECT_THAT(Outcome(), HasSubstr("Left out: //out (comment)"));
  Panel().chkIgnoreShortWords.PerformClick();
  EXPECT_THAT(Outcome(), HasSubstr("in (fewer than 3 characters)"));
  Panel().cboShortWordSize.PerformChoice(2);
  EXPECT_THAT(Outcome(), HasSubstr("let, cats, in (fewer than 4 characters)"));
}

TEST_F(TryItOnPanel, ReadsAWordsFileAgainThatWasEditedSince) {
  Panel().txbWordsFile[0].SetText(folder.Write("a.txt", "cat\r\n"));
  Panel().txbWordsFile[0].LostFocus.Fire();
  EXPECT_THAT(Try("cat dog"), HasSubstr("Counted: dog"));
  static_cast<void>(folder.Write("a.txt", "dog\r\n"));
  EXPECT_THAT(Try("dog cat"), HasSubstr("Counted: cat"));
  static_cast<void>(folder.Write("a.txt", ""));
  EXPECT_THAT(Try("cat dog"), HasSubstr("Counted: cat, dog"));
}

TEST_F(TryItOnPanel, FollowsTheListsInForce) {
  Try("cat dog");
  TypeWords(WordListKind::kIgnore, "cat");
  EXPECT_EQ(Outcome(), "Counted: dog\r\nLeft out: cat (one of the extra words to ignore)");
  Panel().txbWordsFile[1].SetText(folder.Write("only.txt", "cat"));
  Panel().txbWordsFile[1].LostFocus.Fire();
  EXPECT_EQ(Outcome(), "Counted: cat\r\nLeft out: dog (not one of the count-only words)");
}

TEST_F(TryItOnPanel, FollowsListsThatAreCleared) {
  Try("cat dog");
  Panel().txbWordsFile[0].SetText(folder.Write("ignore.txt", "cat\r\n"));
  Panel().txbWordsFile[0].LostFocus.Fire();
  EXPECT_THAT(Outcome(), HasSubstr("Left out: cat (in the words-to-ignore file)"));
  Panel().cmdClearWordsFile[0].PerformClick();
  EXPECT_EQ(Outcome(), "Counted: cat, dog");
  TypeWords(WordListKind::kIgnore, "cat");
  EXPECT_THAT(Outcome(), HasSubstr("Left out: cat"));
  TypeWords(WordListKind::kIgnore, "");
  EXPECT_EQ(Outcome(), "Counted: cat, dog");
}

TEST_F(TryItOnPanel, FollowsListsThatAMenuOrACountHasTaken) {
  Try("the cat");
  Panel().txbWordsFile[0].SetText(folder.Write("ignore.txt", "cat\r\n"));
  EXPECT_EQ(Outcome(), "Counted: the, cat") << "the box was not left";
  CountClipboard("cat");
  EXPECT_THAT(Outcome(), HasSubstr("Left out: cat (in the words-to-ignore file)"));
  program.WordLists().ChooseCommonWords(folder.Write("chosen.txt", "the"));
  EXPECT_THAT(Outcome(), HasSubstr("Left out: the (in the words-to-ignore file)"));
}

TEST_F(TryItOnPanel, ReadsListsAnewForOtherLettersAccentsAndEncodings) {
  Try("дело слово été ete");
  Panel().txbWordsFile[0].SetText(folder.Write("ignore.txt", "слово\r\nété\r\nete\r\n"));
  Panel().txbWordsFile[0].LostFocus.Fire();
  EXPECT_THAT(Outcome(), HasSubstr("Counted: ete\r\n"));
  EXPECT_THAT(Outcome(), HasSubstr("; été (in the words-to-ignore file)"));
  Panel().chkFoldAccents.PerformClick();
  EXPECT_THAT(Outcome(), HasSubstr("; été, ete (in the words-to-ignore file)"));
  Panel().cboLetters.PerformChoice(1);
  EXPECT_THAT(Outcome(), HasSubstr("Left out: слово, été, ete (in the words-to-ignore file)"));
  EXPECT_EQ(program.Settings().lists.IgnoreList.Count(), 1) << "until the next count";
  Panel().txbWordsFile[0].SetText(folder.Write("koi8.txt", "\xD3\xCC\xCF\xD7\xCF\r\n"));
  Panel().txbWordsFile[0].LostFocus.Fire();
  EXPECT_THAT(Outcome(), HasSubstr("Counted: дело, слово"));
  Panel().cboEncoding.PerformChoice(static_cast<int>(CharacterSet::kKoi8R));
  EXPECT_THAT(Outcome(), HasSubstr("Left out: слово (in the words-to-ignore file)"));
}

TEST_F(TryItOnPanel, TakesTypedWordsAsACountWould) {
  Try("дело слово");
  Panel().cboLetters.PerformChoice(1);
  Panel().txbWordsToIgnoreOrCount[0].EnterText("слово,");
  EXPECT_EQ(Outcome(), "Counted: дело\r\nLeft out: слово (one of the extra words to ignore)");
  Panel().txbWordsToIgnoreOrCount[0].EnterText("");
  EXPECT_EQ(Outcome(), "Counted: дело, слово");
}

TEST_F(TryItOnPanel, ListsMeanWordsInEveryLetterCase) {
  Try("του ΤΗΣ Της");
  Panel().cboLetters.PerformChoice(1);
  Panel().txbWordsToIgnoreOrCount[0].EnterText("της");
  EXPECT_EQ(Outcome(), "Counted: του\r\nLeft out: ΤΗΣ, Της (one of the extra words to ignore)");
}

TEST_F(TryItOnPanel, LeavesTheWordsCountedAloneWhileItReadsLists) {
  Panel().txbWordsFile[0].SetText(folder.Write("ignore.txt", "слово cat\r\n"));
  CountClipboard("dog cat");
  Main().cmdSetParameters.PerformClick();
  Try("слово");
  desktop.ForgetQuestions();
  Panel().cboLetters.PerformChoice(1);
  EXPECT_EQ(Outcome(), "Left out: слово (in the words-to-ignore file)");
  EXPECT_EQ(StoredWords(), "dog");
  EXPECT_TRUE(desktop.Messages().empty());
}

TEST_F(TryItOnPanel, FrequencyInTheLineIsNoMatter) {
  Panel().chkIgnoreInfrequentWords.PerformClick();
  EXPECT_EQ(Try("once"), "Counted: once");
}

TEST_F(TryItOnPanel, TellsOfMarkersThatACountRefuses) {
  Try("word");
  Panel().chkAllowCommentMarkers.PerformClick();
  Panel().txbStartComment[0].EnterText("rem");
  EXPECT_EQ(Outcome(), "A count would refuse these comment markers.");
}

TEST_F(TryItOnPanel, TellsThatRunsWereLeftWhole) {
  Explanation explanation{{Candidate{.text = "手机", .word = "手机"}}, true};
  EXPECT_EQ(OutcomeText(explanation, FilterChoices(), program.Text()),
            "Counted: 手机\r\n" + program.Text().GetText(kRunsLeftWholeText));
  explanation.runsLeftWhole = false;
  EXPECT_EQ(OutcomeText(explanation, FilterChoices(), program.Text()), "Counted: 手机");
}

TEST_F(TryItOnPanel, FollowsTheLanguage) {
  Try("word");
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Outcome(), "Gez\u00E4hlt: word");
}

TEST_F(TryItOnPanel, TriesNoMoreThanTheStartOfALongLine) {
  const std::string& outcome = Try(std::string(TryIt::kMostTried, ' ') + "behind");
  EXPECT_THAT(outcome, Not(HasSubstr("behind")));
}

TEST_F(TryItOnPanel, LineIsKeptInAState) {
  Try("my \"own\" line");
  ASSERT_EQ(program.States().SaveState(folder / "a.qlm"), "");
  Try("another");
  EXPECT_EQ(program.States().RestoreSavedState(folder / "a.qlm"), RestoreResult::kRestored);
  EXPECT_EQ(Panel().txbTryIt.Text(), "my \"own\" line");
  EXPECT_EQ(Outcome(), "Counted: my, own, line");
}

TEST_F(TryItOnPanel, RestoreDefaultsLeavesTheLineAndReinitializeDoesNot) {
  const std::string example = Panel().txbTryIt.Text();
  Try("mine");
  Panel().cmdRestoreDefaults.PerformClick();
  EXPECT_EQ(Panel().txbTryIt.Text(), "mine");
  Panel().cmdInitialize.PerformClick();
  EXPECT_EQ(Panel().txbTryIt.Text(), example);
}

TEST_F(TryItOnPanel, AnotherLineEntailsNothingForTheWordsCounted) {
  CountClipboard("cat");
  Main().cmdSetParameters.PerformClick();
  Try("dog");
  Panel().txbTryIt.LostFocus.Fire();
  EXPECT_TRUE(Words().blnWordsGot);
  EXPECT_EQ(StoredWords(), "cat");
}

}  // namespace
}  // namespace quillomat
