// Lists of words: cutting, cleaning, finding.
#include "engine/word_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SplitList, CutsAtTheSeparator) {
  EXPECT_THAT(SplitList("dog cat fox", " ", 10).items, ElementsAre("dog", "cat", "fox"));
}

TEST(SplitList, SeparatorsInARowMakeNoEmptyItem) {
  EXPECT_THAT(SplitList("  dog   cat ", " ", 10).items, ElementsAre("dog", "cat"));
}

TEST(SplitList, CutsAtEveryOneOfSeveralSeparators) {
  EXPECT_THAT(SplitList("txt, htm;.c", " ,;.", 10).items, ElementsAre("txt", "htm", "c"));
}

TEST(SplitList, NothingButSeparatorsIsNoItem) {
  EXPECT_THAT(SplitList("   ", " ", 10).items, IsEmpty());
  EXPECT_THAT(SplitList("", " ", 10).items, IsEmpty());
  EXPECT_TRUE(SplitList("", " ", 0).fits);
}

TEST(SplitList, TakesAsManyItemsAsFit) {
  const SplitResult result = SplitList(" a b ", " ", 2);
  EXPECT_TRUE(result.fits);
  EXPECT_THAT(result.items, ElementsAre("a", "b"));
}

TEST(SplitList, OneItemTooManyDoesNotFitAndLeavesNothing) {
  const SplitResult result = SplitList("a b c", " ", 2);
  EXPECT_FALSE(result.fits);
  EXPECT_THAT(result.items, IsEmpty());
}

TEST(ParseTypedWords, LowersAndTakesOffTrailingSigns) {
  EXPECT_THAT(ParseTypedWords("Dog, cat.").items, ElementsAre("dog", "cat"));
  EXPECT_THAT(ParseTypedWords("  ÉCOLE  e-mail- it's' ").items,
              ElementsAre("école", "e-mail", "it's"));
}

TEST(ParseTypedWords, TakesOffTrailingUnderscoresToo) {
  EXPECT_THAT(ParseTypedWords("rock_").items, ElementsAre("rock"));
}

TEST(ParseTypedWords, LeavesLeadingAndOtherSigns) {
  EXPECT_THAT(ParseTypedWords("-dog (cat) 'tis").items, ElementsAre("-dog", "(cat)", "'tis"));
}

TEST(ParseTypedWords, ItemOfSignsAloneIsNoWord) {
  EXPECT_THAT(ParseTypedWords("-- dog . - cat ,").items, ElementsAre("dog", "cat"));
  EXPECT_THAT(ParseTypedWords("-").items, IsEmpty());
}

TEST(ParseTypedWords, TabsAndLineBreaksSeparateAsBlanksDo) {
  EXPECT_THAT(ParseTypedWords("dog\tcat\r\nhen\nox\rcow").items,
              ElementsAre("dog", "cat", "hen", "ox", "cow"));
}

std::string ManyWords(int words) {
  std::string text;
  for (int i = 0; i < words; ++i) text += "word ";
  return text;
}

TEST(ParseTypedWords, TakesAThousandWords) {
  const SplitResult result = ParseTypedWords(ManyWords(1000));
  EXPECT_TRUE(result.fits);
  EXPECT_EQ(result.items.size(), 1000U);
}

TEST(ParseTypedWords, DoesNotTakeAThousandAndOne) {
  EXPECT_FALSE(ParseTypedWords(ManyWords(1001)).fits);
}

TEST(WordList, FindsWordsInAnyLetterCaseByTheirAccents) {
  const WordList list({"the", "café", "e-mail"});
  EXPECT_TRUE(list.IsInList("the"));
  EXPECT_TRUE(list.IsInList("café"));
  EXPECT_TRUE(list.IsInList("e-mail"));
  EXPECT_TRUE(list.IsInList("The"));
  EXPECT_TRUE(list.IsInList("CAFÉ"));
  EXPECT_FALSE(list.IsInList("cafe"));
  EXPECT_FALSE(list.IsInList("th"));
  EXPECT_FALSE(list.IsInList("them"));
}

TEST(WordList, OfAllLettersSpellingsThatDifferInCaseAloneAreOne) {
  const WordList list({"τους", "πωσ", "ſo", "μm", "łódź", "straße"}, LetterRule::kAll);
  for (const char* word : {"τους", "τουσ", "Τους", "ΤΟΥΣ", "ΠΩΣ", "πως", "So", "ſo", "\u00B5m",
                           "μm", "ΜM", "ŁÓDŹ", "STRAẞE"}) {
    EXPECT_TRUE(list.IsInList(word)) << word;
  }
  for (const char* word : {"τούς", "lódź", "ŁODŹ", "strasse", "του"}) {
    EXPECT_FALSE(list.IsInList(word)) << word;
  }
  EXPECT_THAT(list.Words(), ElementsAre("τους", "πωσ", "ſo", "μm", "łódź", "straße"));
}

TEST(WordList, OfWesternLettersNoOthersAreTheirSmallOnes) {
  const WordList list({"so"});
  EXPECT_FALSE(list.IsInList("ſo"));
}

TEST(WordList, EmptyWordIsNeverFound) {
  const WordList list({"", "dog"});
  EXPECT_FALSE(list.IsInList(""));
  EXPECT_TRUE(list.IsInList("dog"));
  EXPECT_EQ(list.Count(), 2);
}

TEST(WordList, EmptyListFindsNothing) {
  const WordList list;
  EXPECT_FALSE(list.IsInList("dog"));
  EXPECT_EQ(list.Count(), 0);
}

TEST(WordList, KeepsTheOrderAndTheRepetitionsOfItsWords) {
  const WordList list({"dog", "cat", "dog"});
  EXPECT_THAT(list.Words(), ElementsAre("dog", "cat", "dog"));
  EXPECT_EQ(list.Count(), 3);
}

TEST(WordLists, CountOnlyWordsMayStandInEitherList) {
  WordLists lists;
  EXPECT_FALSE(lists.HasCountOnlyWords());
  lists.CountOnlyList = WordList({"dog"});
  EXPECT_TRUE(lists.HasCountOnlyWords());
  lists.CountOnlyList = WordList();
  lists.ExtraCountOnlyList = WordList({"dog"});
  EXPECT_TRUE(lists.HasCountOnlyWords());
}

TEST(WordLists, WithoutListsEveryWordIsAdmitted) {
  EXPECT_TRUE(WordLists().Admits("dog", false));
}

TEST(WordLists, WordsOfEitherIgnoreListAreNotAdmitted) {
  WordLists lists;
  lists.IgnoreList = WordList({"the"});
  lists.ExtraIgnoreList = WordList({"dog"});
  EXPECT_FALSE(lists.Admits("the", false));
  EXPECT_FALSE(lists.Admits("dog", false));
  EXPECT_TRUE(lists.Admits("cat", false));
}

TEST(WordLists, InCountOnlyModeJustTheListedWordsAreAdmitted) {
  WordLists lists;
  lists.CountOnlyList = WordList({"the"});
  lists.ExtraCountOnlyList = WordList({"dog"});
  EXPECT_TRUE(lists.Admits("the", true));
  EXPECT_TRUE(lists.Admits("dog", true));
  EXPECT_FALSE(lists.Admits("cat", true));
}

TEST(WordLists, CountOnlyModeTakesNoNoticeOfWordsToIgnore) {
  WordLists lists;
  lists.ExtraCountOnlyList = WordList({"the"});
  lists.IgnoreList = WordList({"the"});
  lists.ExtraIgnoreList = WordList({"the"});
  EXPECT_TRUE(lists.Admits("the", true));
}

TEST(WordLists, WordIsLookedUpInLowerCase) {
  WordLists lists;
  lists.ExtraIgnoreList = WordList({"école"});
  EXPECT_FALSE(lists.Admits("ÉCOLE", false));
  lists.ExtraCountOnlyList = WordList({"the"});
  EXPECT_TRUE(lists.Admits("The", true));
}

}  // namespace
}  // namespace quillomat
