// Which of the counted words are listed.
#include "engine/word_filters.h"

#include <gtest/gtest.h>
#include <string>

#include "support/engine_fixture.h"

namespace quillomat {
namespace {

class WordFilters : public EngineFixture {
 protected:
  WordFilters() { filters = FilterChoices(); }
};

TEST_F(WordFilters, NothingIsLeftOutWithoutAChoice) {
  Count("a bbb xiv hmm of once");
  EXPECT_EQ(Listed(), "a bbb hmm of once xiv");
}

TEST_F(WordFilters, LowestThresholdLeavesOutWordsMetOnce) {
  filters.ignoreInfrequentWords = CheckState::kChecked;
  filters.thresholdFrequencyIndex = 0;
  Count("once twice twice");
  EXPECT_EQ(Listed(), "twice*2");
}

TEST_F(WordFilters, ThresholdIsTheIndexPlusTwo) {
  filters.ignoreInfrequentWords = CheckState::kChecked;
  filters.thresholdFrequencyIndex = 1;
  Count("two two three three three");
  EXPECT_EQ(Listed(), "three*3");
}

TEST_F(WordFilters, ShortSizeIsTheIndexPlusTwo) {
  filters.ignoreShortWords = CheckState::kChecked;
  filters.shortWordSizeIndex = 1;
  Count("a of the");
  EXPECT_EQ(Listed(), "the");
  filters.shortWordSizeIndex = 0;
  EXPECT_EQ(Listed(), "of the");
}

TEST_F(WordFilters, LengthsAreInCharacters) {
  filters.ignoreShortWords = CheckState::kChecked;
  filters.shortWordSizeIndex = 1;
  Count("né née");
  EXPECT_EQ(Listed(), "née");
  filters = FilterChoices();
  filters.longWordSize = 20;
  std::string accented;
  for (int i = 0; i < 20; ++i) accented += "é";
  Count(accented + " " + accented + "e");
  EXPECT_EQ(Listed(), accented);
}

TEST_F(WordFilters, LongWordsAreLeftOutWhateverIsChecked) {
  filters.longWordSize = 20;
  const std::string twenty(20, 'a');
  Count(twenty + " " + twenty + "b");
  EXPECT_EQ(Listed(), twenty);
}

TEST_F(WordFilters, RepetitionsOfALetterAreLeftOut) {
  filters.ignoreRepetitions = CheckState::kChecked;
  Allow(AllowFlag::kNumerals);
  Count("aaa zzz a 111 éé abab");
  EXPECT_EQ(Listed(), "111 a abab");
}

TEST_F(WordFilters, RepetitionIsJudgedByLetterCase) {
  filters.ignoreRepetitions = CheckState::kChecked;
  CaseIsSignificant();
  Count("bbb");
  EXPECT_EQ(Listed(), "");
  Count("Bbb");
  EXPECT_EQ(Listed(), "Bbb");
}

TEST_F(WordFilters, SpellingFirstMetIsJudged) {
  filters.ignoreRepetitions = CheckState::kChecked;
  CaseIsSignificant();
  Count("Bbb bbb");
  EXPECT_EQ(Listed(), "Bbb*2");
  Count("bbb Bbb");
  EXPECT_EQ(Listed(), "");
}

TEST_F(WordFilters, RomanNumeralsBelowFortyAreLeftOut) {
  filters.ignoreRomNum40 = CheckState::kChecked;
  CaseIsSignificant();
  Count("XIV VIX I iii XL MIX LI vim");
  EXPECT_EQ(Listed(), "LI MIX vim XL");
}

TEST_F(WordFilters, WordsWithoutVowelOrYAreLeftOut) {
  filters.ignoreNoVowelOrY = CheckState::kChecked;
  Allow(AllowFlag::kNumerals);
  Count("by gym rhythm hmm www 3 to øl");
  EXPECT_EQ(Listed(), "by gym øl rhythm to");
}

TEST_F(WordFilters, GreyBoxesLeaveNothingOut) {
  filters.ignoreInfrequentWords = CheckState::kGrayed;
  filters.ignoreShortWords = CheckState::kGrayed;
  filters.shortWordSizeIndex = 7;
  filters.ignoreRepetitions = CheckState::kGrayed;
  filters.ignoreRomNum40 = CheckState::kGrayed;
  filters.ignoreNoVowelOrY = CheckState::kGrayed;
  Count("a bbb xiv hmm");
  EXPECT_EQ(Listed(), "a bbb hmm xiv");
}

TEST_F(WordFilters, ExcludedWordsStayInTheStoreWithTheirCounts) {
  filters.ignoreNoVowelOrY = CheckState::kChecked;
  Count("hmm tree hmm");
  EXPECT_EQ(Listed(), "tree");
  EXPECT_EQ(Words(), "hmm*2 tree");
}

TEST_F(WordFilters, FilteringAgainStartsFromAllWords) {
  filters.ignoreNoVowelOrY = CheckState::kChecked;
  Count("hmm tree");
  EXPECT_EQ(Listed(), "tree");
  filters.ignoreNoVowelOrY = CheckState::kUnchecked;
  EXPECT_EQ(Listed(), "hmm tree");
}

TEST_F(WordFilters, AnEmptyStoreIsNoTrouble) {
  EXPECT_EQ(Listed(), "");
}

/// The letters by which a word passes the filters may stand anywhere in it.
TEST_F(WordFilters, AllLettersOfAWordAreAsked) {
  filters.ignoreRepetitions = CheckState::kChecked;
  filters.ignoreRomNum40 = CheckState::kChecked;
  filters.ignoreNoVowelOrY = CheckState::kChecked;
  Count("bcdfghjklmnpa bcdfghjklmnpq xxxxxxxxxxxa xxxxxxxxxxxi aaaaaaaaaaaab aaaaaaaaaaaaa iiiiix");
  EXPECT_EQ(Listed(), "aaaaaaaaaaaab bcdfghjklmnpa xxxxxxxxxxxa");
}

}  // namespace
}  // namespace quillomat
