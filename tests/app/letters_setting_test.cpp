// The panel's choice of letters, and whether accents make a difference.
#include <gmock/gmock.h>

#include "support/program_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr int kWestern = 0;
constexpr int kAll = 1;

class LettersSetting : public ProgramFixture {
 protected:
  void ChooseLetters(int letters) { Panel().cboLetters.PerformChoice(letters); }

  std::string SavedState() {
    EXPECT_EQ(program.States().SaveState(folder / "state.qlm"), "");
    return ContentsOf(folder / "state.qlm");
  }
};

TEST_F(LettersSetting, WesternLettersAndNoDifferenceInAccentsAreTheDefault) {
  CountClipboard("Łódź sad sąd été ete");
  EXPECT_EQ(StoredWords(), "d été*2 ód sad") << "ą is no letter, and cuts";
}

TEST_F(LettersSetting, LettersOfAllLanguagesAreCountedIfChosen) {
  ChooseLetters(kAll);
  CountClipboard("Łódź слово sąd sad");
  EXPECT_EQ(StoredWords(), "łódź sąd*2 слово");
  EXPECT_THAT(Output(), HasSubstr("слово")) << "no word of other letters lacks a vowel";
}

TEST_F(LettersSetting, AccentsMakeADifferenceIfTheBoxIsEmpty) {
  Panel().chkFoldAccents.PerformClick();
  CountClipboard("été ete où ou");
  EXPECT_EQ(StoredWords(), "ete ou où été");
}

TEST_F(LettersSetting, ChangeMakesTheCountsOutdatedAndForTheBoxTheUserIsAsked) {
  CountClipboard("cat");
  desktop.Answer(MessageAnswer::kNo);
  Panel().chkFoldAccents.PerformClick();
  EXPECT_EQ(OnlyMessage().text, "Changing this entails reading the clipboard anew.  Is this OK?");
  EXPECT_TRUE(Panel().chkFoldAccents.IsChecked());
  EXPECT_TRUE(Words().blnWordsGot);
  desktop.ForgetQuestions();
  ChooseLetters(kAll);
  EXPECT_TRUE(desktop.Messages().empty());
  EXPECT_EQ(Panel().cboLetters.ListIndex(), kAll);
  EXPECT_FALSE(Words().blnWordsGot);
}

TEST_F(LettersSetting, TypedWordsFollow) {
  TypeWords(WordListKind::kIgnore, "СЛОВО");
  ChooseLetters(kAll);
  CountClipboard("слово дело");
  EXPECT_EQ(StoredWords(), "дело");
}

TEST_F(LettersSetting, WordsFileIsReadAnewForOtherLetters) {
  Panel().txbWordsFile[0].SetText(folder.Write("words.txt", "слово zażółć\n"));
  CountClipboard("cat");
  ChooseLetters(kAll);
  CountClipboard("слово дело Zażółć");
  EXPECT_EQ(StoredWords(), "дело");
  desktop.Answer(MessageAnswer::kYes);
  Panel().chkFoldAccents.PerformClick();
  CountClipboard("слово дело Zażółć zazolc");
  EXPECT_EQ(StoredWords(), "zazolc дело");
}

TEST_F(LettersSetting, StateFileTellsOfThemWhereTheyAreNotTheDefault) {
  EXPECT_THAT(SavedState(), Not(HasSubstr("=")));
  ChooseLetters(kAll);
  Panel().chkFoldAccents.PerformClick();
  const std::string state = SavedState();
  EXPECT_THAT(state, HasSubstr("\r\ncboLetters=1\r\n"));
  EXPECT_THAT(state, HasSubstr("\r\nchkFoldAccents=0\r\n"));
  Panel().cmdRestoreDefaults.PerformClick();
  EXPECT_EQ(Panel().cboLetters.ListIndex(), kWestern);
  EXPECT_TRUE(Panel().chkFoldAccents.IsChecked());
  EXPECT_EQ(program.States().RestoreSavedState(folder / "state.qlm"), RestoreResult::kRestored);
  EXPECT_EQ(Panel().cboLetters.ListIndex(), kAll);
  EXPECT_FALSE(Panel().chkFoldAccents.IsChecked());
}

TEST_F(LettersSetting, ItemsSpeakTheLanguageOfTheWindows) {
  EXPECT_THAT(Panel().cboLetters.Items(), ElementsAre("Western European", "of all languages"));
  ChooseLetters(kAll);
  Main().cmdLanguage.PerformClick();
  EXPECT_THAT(Panel().cboLetters.Items(), ElementsAre("westeuropäische", "aller Sprachen"));
  EXPECT_EQ(Panel().cboLetters.ListIndex(), kAll);
}

}  // namespace
}  // namespace quillomat
