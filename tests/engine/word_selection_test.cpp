// Which of the words found are counted; words files; stopping.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/engine_fixture.h"

namespace quillomat {
namespace {

class WordSelection : public EngineFixture {};

TEST_F(WordSelection, WordsToIgnoreAreReadButNotCounted) {
  Ignore("the of");
  EXPECT_EQ(Count("the king of the hill"), "hill king");
  EXPECT_EQ(wordsRead, 5);
}

TEST_F(WordSelection, WordsOfAWordsFileAreIgnoredToo) {
  lists.IgnoreList = WordList({"hill", "the"});
  Ignore("of");
  EXPECT_EQ(Count("the king of the hill"), "king");
}

TEST_F(WordSelection, OnlyCountOnlyWordsAreCounted) {
  CountOnly("king hill");
  EXPECT_EQ(Count("the king of the hill"), "hill king");
  EXPECT_EQ(wordsRead, 5);
}

TEST_F(WordSelection, CountOnlyWordsTakePrecedenceOverWordsToIgnore) {
  CountOnly("the");
  Ignore("the king");
  EXPECT_EQ(Count("the king of the hill"), "the*2");
}

TEST_F(WordSelection, ListsAreComparedInLowerCaseAndWordsKeepTheirs) {
  CaseIsSignificant();
  CountOnly("the king");
  EXPECT_EQ(Count("The KING of the hill"), "KING The*2");
  CountOnly("");
  Ignore("the");
  EXPECT_EQ(Count("The KING of the hill"), "hill KING of");
}

TEST_F(WordSelection, AccentsOfListedWordsCount) {
  Ignore("cafe");
  EXPECT_EQ(Count("café"), "café");
  Ignore("café");
  EXPECT_EQ(Count("cafe"), "cafe");
  EXPECT_EQ(Count("Café"), "");
}

TEST_F(WordSelection, ListedWordIsComparedInItsFinalForm) {
  DropFinalS();
  Ignore("cats");
  EXPECT_EQ(Count("cats"), "cat");
  Ignore("cat");
  EXPECT_EQ(Count("cats"), "");
}

TEST_F(WordSelection, CountOnlyWordWithAHyphenIsFoundWhenHyphensAreAllowed) {
  CountOnly("e-mail");
  EXPECT_EQ(Count("e-mail"), "e-mail");
  AllowNothing();
  EXPECT_EQ(Count("e-mail"), "");
}

class WordsFile : public EngineFixture {};

TEST_F(WordsFile, MayHoldComments) {
  EXPECT_EQ(ReadList({"Aren't // comment", "/* a b */"}), "aren't");
}

TEST_F(WordsFile, CommentsMaySpanLines) {
  EXPECT_EQ(ReadList({"dog /* a", "b */ cat"}), "cat dog");
}

TEST_F(WordsFile, WordsMayHoldEverySignWhateverIsAllowed) {
  AllowNothing();
  EXPECT_EQ(ReadList({"e-mail", "o'clock", "mp3 3rd", "me@home.org", "a_b rock_"}),
            "3rd a_b e-mail me@home.org mp3 o'clock rock_");
}

TEST_F(WordsFile, WordsAreTrimmedAsInText) {
  EXPECT_EQ(ReadList({"dog, (cat) 'tis."}), "cat dog tis");
}

TEST_F(WordsFile, NeitherFinalSNorFragmentsAreDropped) {
  DropFinalS();
  EXPECT_EQ(ReadList({"cats isn s t"}), "cats isn s t");
}

TEST_F(WordsFile, NeitherDashesNorEntitiesAreReplaced) {
  EXPECT_EQ(ReadList({"well--known"}), "well--known");
  EXPECT_EQ(ReadList({"caf&eacute;"}), "caf eacute");
}

TEST_F(WordsFile, LongWordsAreTaken) {
  EXPECT_EQ(ReadList({std::string(101, 'a')}), std::string(101, 'a'));
}

TEST_F(WordsFile, ListsHaveNoEffectOnItAndItsWordsAreNotCountedAsRead) {
  Ignore("dog");
  EXPECT_EQ(ReadList({"dog cat"}), "cat dog");
  EXPECT_EQ(wordsRead, 0);
}

TEST_F(WordsFile, SignsOfItsWordsAreNoted) {
  ReadList({"co-op plain", "// o'clock"});
  const auto noted = [this](AllowFlag flag) {
    return settings.ListCharFlags[static_cast<std::size_t>(flag)];
  };
  EXPECT_TRUE(noted(AllowFlag::kHyphen));
  EXPECT_FALSE(noted(AllowFlag::kApostrophe));
  EXPECT_FALSE(noted(AllowFlag::kForwardSlash));
}

TEST_F(WordsFile, SignsTrimmedOffAreNotNoted) {
  ReadList({"dog- cat, fox."});
  EXPECT_EQ(settings.ListCharFlags, AllowFlagSet{});
}

TEST_F(WordsFile, ListIsInTheOrderOfTheKeys) {
  ReadList({"zebra Über ant"});
  EXPECT_EQ(StoredList().Words(), (std::vector<std::string>{"ant", "über", "zebra"}));
}

TEST_F(WordsFile, OfSpellingsThatMeetTheFirstAloneIsListed) {
  ReadList({"café cafe", "Café"});
  lists.IgnoreList = StoredList();
  EXPECT_EQ(Count("café"), "");
  EXPECT_EQ(Count("cafe"), "cafe");
}

TEST_F(WordsFile, StartsInsideACommentThatTheLastCountLeftOpen) {
  UsePreset("C");
  Count("a /* b");
  EXPECT_EQ(ReadList({"dog */ cat"}), "cat");
}

TEST_F(WordsFile, EmptyFileGivesAnEmptyList) {
  ReadList({});
  EXPECT_EQ(StoredList().Count(), 0);
}

class Stopping : public EngineFixture {};

TEST_F(Stopping, YieldsAfterEveryCandidateWord) {
  Count("one two three");
  EXPECT_EQ(yield.yields, 3);
}

TEST_F(Stopping, YieldsAfterACandidateOfWhichNothingIsLeft) {
  Count("isn't");
  EXPECT_EQ(yield.yields, 2);
}

TEST_F(Stopping, LeavesTheWordsFoundSoFar) {
  yield.stopAt = 2;
  EXPECT_EQ(Count("one two three"), "one two");
  EXPECT_EQ(wordsRead, 2);
}

TEST_F(Stopping, LongTextWithoutWordsYieldsToo) {
  Count(std::string(100'000, '.'));
  EXPECT_GT(yield.yields, 0);
}

}  // namespace
}  // namespace quillomat
