#include <algorithm>
#include <string>

#include "table_fixture.h"

namespace quillomat {
namespace {

class WordRowsTest : public TableFixture {
 protected:
  void AddSample() {
    Add("the", 12);
    Add("sat", 3);
    Add("cat", 3);
    Add("ox");
    Add("Müller");
  }
};

TEST_F(WordRowsTest, NoWordsAreNoRows) {
  EXPECT_EQ(Rows().Size(), 0U);
  EXPECT_EQ(Rows().Instances(), 0);
  EXPECT_EQ(Ordered(WordColumn::kWord), "");
  EXPECT_EQ(Filtered(FilterKind::kContains, "a"), "");
  EXPECT_EQ(Rows().FindBeginning("a", 0), std::nullopt);
}

TEST_F(WordRowsTest, StandByRankAtFirst) {
  AddSample();
  EXPECT_EQ(Shown(), "the cat sat Müller ox");
  EXPECT_EQ(Rows().Instances(), 20);
  EXPECT_EQ(Rows().RowAt(2).rank, 3);
}

TEST_F(WordRowsTest, EveryColumnOrdersThemBothWays) {
  AddSample();
  for (const WordColumn column : {WordColumn::kRank, WordColumn::kCumulative}) {
    EXPECT_EQ(Ordered(column, true), "ox Müller sat cat the");
    EXPECT_EQ(Ordered(column), "the cat sat Müller ox");
  }
  for (const WordColumn column :
       {WordColumn::kFrequency, WordColumn::kPercent, WordColumn::kPerMillion}) {
    EXPECT_EQ(Ordered(column), "Müller ox cat sat the") << "equal ones are in alphabetical order";
    EXPECT_EQ(Ordered(column, true), "the cat sat Müller ox");
  }
  EXPECT_EQ(Ordered(WordColumn::kLength), "ox cat sat the Müller");
  EXPECT_EQ(Ordered(WordColumn::kLength, true), "Müller cat sat the ox");
  EXPECT_EQ(Ordered(WordColumn::kWord), "the Müller cat sat ox");
  EXPECT_EQ(Ordered(WordColumn::kWord, true), "ox sat cat Müller the");
}

TEST_F(WordRowsTest, NumberOfFilesOrdersThem) {
  store_.Files().Reset(true);
  for (const char* file : {"a", "b"}) {
    store_.Files().SetFileBeingScanned(file);
    Add("cat", 5);
  }
  Add("dog", 20);
  EXPECT_EQ(Ordered(WordColumn::kFiles), "dog cat");
  EXPECT_EQ(Ordered(WordColumn::kFiles, true), "cat dog");
}

TEST_F(WordRowsTest, ManyWordsAreInOrderWhateverThePartsThatAreSorted) {
  for (int i = 0; i < 90'000; ++i) Add("w" + std::to_string(i * 7919 % 90'000) + "x");
  Rows().SetOrder({WordColumn::kWord, false});
  std::vector<std::string> backward;
  for (std::size_t row = 0; row < Rows().Size(); ++row) {
    const std::string_view word = Rows().RowAt(row).word;
    backward.emplace_back(word.rbegin(), word.rend());
  }
  EXPECT_EQ(backward.size(), 90'000U);
  EXPECT_TRUE(std::ranges::is_sorted(backward));
  EXPECT_EQ(std::ranges::adjacent_find(backward), backward.end());
}

TEST_F(WordRowsTest, WordsThatAreLeftOutAreNoRows) {
  AddSample();
  for (std::int32_t index = 1; index <= store_.NumDifferentWords(); ++index) {
    if (store_.WordOf(index) == "cat") store_.SetIncluded(index, false);
  }
  EXPECT_EQ(Shown(), "the sat Müller ox");
  EXPECT_EQ(Filtered(FilterKind::kContains, "at"), "sat");
  EXPECT_EQ(Ordered(WordColumn::kWord), "sat");
}

TEST_F(WordRowsTest, FilterLooksAtWordsAsTheListFoldsThem) {
  AddSample();
  EXPECT_EQ(Filtered(FilterKind::kContains, "AT"), "cat sat");
  EXPECT_EQ(Rows().Instances(), 6);
  EXPECT_EQ(Filtered(FilterKind::kContains, "ül"), "Müller");
  EXPECT_EQ(Filtered(FilterKind::kContains, "muell"), "Müller");
  EXPECT_EQ(Filtered(FilterKind::kStartsWith, "c"), "cat");
  EXPECT_EQ(Filtered(FilterKind::kEndsWith, "t"), "cat sat");
  EXPECT_EQ(Filtered(FilterKind::kEquals, "the"), "the");
  EXPECT_EQ(Filtered(FilterKind::kEquals, "th"), "");
  EXPECT_EQ(Rows().Instances(), 0);
}

TEST_F(WordRowsTest, SignsOfAPatternStandForCharacters) {
  AddSample();
  EXPECT_EQ(Filtered(FilterKind::kPattern, "?at"), "cat sat");
  EXPECT_EQ(Filtered(FilterKind::kPattern, "*e*"), "the Müller");
  EXPECT_EQ(Filtered(FilterKind::kPattern, "m?ller"), "Müller") << "one character";
  EXPECT_EQ(Filtered(FilterKind::kPattern, "M??LLER"), "Müller") << "and two, when folded";
  EXPECT_EQ(Filtered(FilterKind::kPattern, "at"), "") << "it is for the whole word";
}

TEST_F(WordRowsTest, ExpressionSeesWordsFoldedAndInLowerCase) {
  AddSample();
  const auto is = [](std::string wanted) {
    return [wanted](std::string_view text) { return text == wanted; };
  };
  EXPECT_EQ(Filtered(FilterKind::kExpression, "x", is("mueller")), "Müller");
  EXPECT_EQ(Filtered(FilterKind::kExpression, "x", is("müller")), "Müller");
  EXPECT_EQ(Filtered(FilterKind::kExpression, "x", is("cat")), "cat");
}

TEST_F(WordRowsTest, AccentsMakeADifferenceWhereTheyDoForTheList) {
  store_.SetKeyRule({.keepAccents = true});
  AddSample();
  EXPECT_EQ(Filtered(FilterKind::kContains, "MÜL"), "Müller");
  EXPECT_EQ(Filtered(FilterKind::kContains, "muel"), "");
  EXPECT_EQ(Filtered(FilterKind::kPattern, "m?ller"), "Müller");
  Rows().SetFilter({});
  EXPECT_EQ(Rows().FindBeginning("mü", 0), 3U);
  EXPECT_EQ(Rows().FindBeginning("mu", 0), std::nullopt);
}

TEST_F(WordRowsTest, LettersOfAllLanguagesAreFoldedAsTheListDoes) {
  store_.SetKeyRule({.letters = LetterRule::kAll});
  Add("\u041C\u0438\u0440");
  Add("\u0141\u00F3d\u017A");
  EXPECT_EQ(Filtered(FilterKind::kEquals, "\u043C\u0418\u0420"), "\u041C\u0438\u0440");
  EXPECT_EQ(Filtered(FilterKind::kStartsWith, "lod"), "\u0141\u00F3d\u017A");
  EXPECT_EQ(Filtered(FilterKind::kPattern, "\u0142?d?"), "\u0141\u00F3d\u017A");
}

TEST_F(WordRowsTest, FilterAndOrderDoNotDisturbEachOther) {
  AddSample();
  Rows().SetOrder({WordColumn::kWord, true});
  EXPECT_EQ(Filtered(FilterKind::kContains, "at"), "sat cat");
  EXPECT_EQ(Ordered(WordColumn::kFrequency, true), "cat sat");
  Rows().SetFilter({});
  EXPECT_EQ(Shown(), "the cat sat Müller ox");
  EXPECT_EQ(Rows().Instances(), 20);
}

TEST_F(WordRowsTest, WordsAreFoundByTheirBeginningRoundTheEnd) {
  AddSample();
  EXPECT_EQ(Rows().FindBeginning("s", 0), 2U);
  EXPECT_EQ(Rows().FindBeginning("the", 1), 0U);
  EXPECT_EQ(Rows().FindBeginning("mü", 0), 3U);
  EXPECT_EQ(Rows().FindBeginning("x", 0), std::nullopt);
  EXPECT_EQ(Rows().FindBeginning("ox", 99), 4U);
  Rows().SetFilter({FilterKind::kContains, "at"});
  EXPECT_EQ(Rows().FindBeginning("the", 0), std::nullopt) << "it is not shown";
}

TEST_F(WordRowsTest, RowOfAWordIsFoundWhereverItStands) {
  AddSample();
  const std::int32_t cat = Rows().Places()[1];
  Rows().SetOrder({WordColumn::kWord, true});
  EXPECT_EQ(Rows().RowAt(*Rows().RowOfPlace(cat)).word, "cat");
  Rows().SetFilter({FilterKind::kEquals, "ox"});
  EXPECT_EQ(Rows().RowOfPlace(cat), std::nullopt);
}

}  // namespace
}  // namespace quillomat
