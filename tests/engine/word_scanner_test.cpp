// How text is cut into words.
#include "engine/word_scanner.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "support/engine_fixture.h"

namespace quillomat {
namespace {

class WordCutting : public EngineFixture {};

TEST_F(WordCutting, WithNothingAllowedSignsAndDigitsSeparateWords) {
  AllowNothing();
  EXPECT_EQ(Count("e-mail 3rd"), "e mail rd");
}

TEST_F(WordCutting, AllowedNumeralsBelongToWords) {
  AllowNothing();
  Allow(AllowFlag::kNumerals);
  EXPECT_EQ(Count("3rd 42"), "3rd 42");
}

TEST_F(WordCutting, GreyBoxAllowsNothing) {
  Allow(AllowFlag::kHyphen, CheckState::kGrayed);
  EXPECT_EQ(Count("e-mail"), "e mail");
}

TEST_F(WordCutting, EachAllowedSignKeepsAWordTogether) {
  const std::array<std::pair<AllowFlag, std::string>, 11> words = {
      {{AllowFlag::kHyphen, "well-known"},
       {AllowFlag::kApostrophe, "o'clock"},
       {AllowFlag::kUnderscore, "snake_case"},
       {AllowFlag::kColon, "std::move"},
       {AllowFlag::kBackslash, "back\\slash"},
       {AllowFlag::kForwardSlash, "and/or"},
       {AllowFlag::kParentheses, "word(x)y"},
       {AllowFlag::kPeriod, "e.g"},
       {AllowFlag::kComma, "a,b"},
       {AllowFlag::kAtSign, "me@home"},
       {AllowFlag::kNumerals, "mp3"}}};
  for (const auto& [flag, word] : words) {
    AllowNothing();
    Allow(flag);
    EXPECT_EQ(Count(word), word);
    AllowEverything();
    Allow(flag, CheckState::kUnchecked);
    EXPECT_NE(Count(word), word);
  }
}

TEST_F(WordCutting, MultiplicationAndDivisionSignsEndAWord) {
  AllowEverything();
  EXPECT_EQ(Count("ab×cd÷ef"), "ab cd ef");
}

TEST_F(WordCutting, AccentedLettersBelongToWords) {
  EXPECT_EQ(Count("né straße haÿ"), "haÿ né straße");
}

TEST_F(WordCutting, CharacterAbove255EndsAWord) {
  EXPECT_EQ(Count("abŠcd ef€gh ij’kl mn🙂op"), "ab cd ef gh ij kl mn op");
}

TEST_F(WordCutting, AllowedHyphenKeepsAWordTogether) {
  EXPECT_EQ(Count("well-known"), "well-known");
}

TEST_F(WordCutting, DoubleHyphenAlwaysSeparatesWords) {
  EXPECT_EQ(Count("well--known"), "known well");
  EXPECT_EQ(Count("well---known"), "known well");
  EXPECT_EQ(Count("well----known"), "known well");
}

TEST_F(WordCutting, LeadingAndTrailingSignsAreTakenOff) {
  AllowEverything();
  EXPECT_EQ(Count("(see)"), "see");
  EXPECT_EQ(Count("(see) -this, 'that'. those:"), "see that this those");
}

TEST_F(WordCutting, ParenthesesAroundAWordAreTakenOffAllowedOrNot) {
  EXPECT_EQ(Count("(see)"), "see");
}

TEST_F(WordCutting, InnerApostrophesStayWhenAllowed) {
  Allow(AllowFlag::kApostrophe);
  EXPECT_EQ(Count("rock'n'roll'"), "rock'n'roll");
}

TEST_F(WordCutting, ApostropheNeverStartsAWord) {
  Allow(AllowFlag::kApostrophe);
  EXPECT_EQ(Count("'tis"), "tis");
}

TEST_F(WordCutting, FinalPeriodIsTakenOffANumber) {
  Allow(AllowFlag::kNumerals);
  Allow(AllowFlag::kPeriod);
  EXPECT_EQ(Count("3.14."), "3.14");
}

TEST_F(WordCutting, OtherAllowedSignsMayStartAWord) {
  AllowEverything();
  EXPECT_EQ(Count(":a _b \\c /d @e 9f"), "/d 9f :a @e \\c _b");
}

TEST_F(WordCutting, TrailingUnderscoresAndSlashesStay) {
  AllowEverything();
  EXPECT_EQ(Count("a_ b/ c\\ d@"), "a_ b/ c\\ d@");
}

TEST_F(WordCutting, WordOfWhichNothingIsLeftIsNeitherReadNorStored) {
  Allow(AllowFlag::kColon);
  EXPECT_EQ(Count("a :: b :"), "a b");
  EXPECT_EQ(wordsRead, 2);
}

TEST_F(WordCutting, DashesAtTheStartOfATokenAreNoWord) {
  EXPECT_EQ(Count("-- -a --- -"), "a");
  EXPECT_EQ(wordsRead, 1);
}

TEST_F(WordCutting, LastCharacterOfATextNeverStartsAWord) {
  WordScanner scanner(settings, choices, lists, store, yield);
  scanner.GetWords("a");
  scanner.GetWords("é");
  EXPECT_EQ(Words(), "");
  scanner.GetWords("b c");
  EXPECT_EQ(Words(), "b");
  scanner.GetWords("d ef");
  EXPECT_EQ(Words(), "b d ef");
}

TEST_F(WordCutting, EmptyAndBlankTextsHoldNoWord) {
  EXPECT_EQ(Count(std::vector<std::string>{"", " ", "    "}), "");
  EXPECT_EQ(wordsRead, 0);
}

TEST_F(WordCutting, TextIsLoweredUnlessLetterCaseIsSignificant) {
  EXPECT_EQ(Count("Dog ÉCOLE"), "dog école");
  CaseIsSignificant();
  EXPECT_EQ(Count("Dog ÉCOLE"), "Dog ÉCOLE");
}

TEST_F(WordCutting, EntitiesOfLettersAreDecodedInEveryText) {
  EXPECT_EQ(Count("caf&eacute; na&iuml;ve"), "café naïve");
}

TEST_F(WordCutting, OtherEntitiesAreCutAsTheyStand) {
  EXPECT_EQ(Count("fish &amp; chips"), "amp chips fish");
}

TEST_F(WordCutting, LowerCasingComesBeforeTheDecoding) {
  EXPECT_EQ(Count("CAF&EACUTE; &Eacute;t&eacute;"), "café été");
}

TEST_F(WordCutting, WithSignificantCaseEntitiesKeepTheirs) {
  CaseIsSignificant();
  EXPECT_EQ(Count("&Eacute;t&eacute; caf&EACUTE;"), "caf EACUTE Été");
}

TEST_F(WordCutting, BareAmpersandHidesTheEntitiesUpToTheNextSemicolon) {
  EXPECT_EQ(Count("tea & caf&eacute; th&eacute;"), "caf eacute tea thé");
}

TEST_F(WordCutting, DashesAreReplacedBeforeEntitiesAreDecoded) {
  EXPECT_EQ(Count("a&ea--cute;"), "a cute ea");
}

TEST_F(WordCutting, RunOf65000CharactersIsCutThere) {
  EXPECT_EQ(Count(std::string(65'000, 'a') + "bcd"), "bcd");
  EXPECT_EQ(wordsRead, 2);
}

TEST_F(WordCutting, WordOfMoreThan100CharactersIsReadButNotStored) {
  EXPECT_EQ(Count(std::string(101, 'a') + " " + std::string(100, 'b')), std::string(100, 'b'));
  EXPECT_EQ(wordsRead, 2);
}

TEST_F(WordCutting, FinalSIsDroppedOnlyWhenChosen) {
  EXPECT_EQ(Count("cats"), "cats");
  choices.dropFinalS = CheckState::kGrayed;
  EXPECT_EQ(Count("cats"), "cats");
  DropFinalS();
  EXPECT_EQ(Count("cats boys news its"), "boy cat it new");
  EXPECT_EQ(Count("gas this yes glass physics maths is"), "gas glass is maths physics this yes");
}

TEST_F(WordCutting, PossessiveKeepsItsS) {
  DropFinalS();
  Allow(AllowFlag::kApostrophe);
  CaseIsSignificant();
  EXPECT_EQ(Count("its it's John's CATS"), "CATS it it's John's");
}

TEST_F(WordCutting, WordIsNotTrimmedAgainWithoutItsS) {
  DropFinalS();
  EXPECT_EQ(Count("a-s"), "a-");
}

TEST_F(WordCutting, FinalSIsLookedForBehindTheTrimming) {
  DropFinalS();
  Allow(AllowFlag::kPeriod);
  EXPECT_EQ(Count("cats."), "cat");
}

TEST_F(WordCutting, WithoutApostrophesTheirFragmentsAreDropped) {
  EXPECT_EQ(Count("don't isn't John's"), "don john");
  EXPECT_EQ(wordsRead, 2);
}

TEST_F(WordCutting, NegationOfAStemYieldsNothingAtAll) {
  EXPECT_EQ(Count("weren't"), "");
  EXPECT_EQ(wordsRead, 0);
}

TEST_F(WordCutting, EveryEndingOfAStemIsDroppedToo) {
  EXPECT_EQ(Count("n en dn ren don won"), "don won");
}

TEST_F(WordCutting, WithApostrophesAllowedFragmentsAreWords) {
  Allow(AllowFlag::kApostrophe);
  EXPECT_EQ(Count("don't isn n s t"), "don't isn n s t");
}

TEST_F(WordCutting, GreyApostropheBoxCutsButDropsNoFragment) {
  Allow(AllowFlag::kApostrophe, CheckState::kGrayed);
  EXPECT_EQ(Count("don't isn't"), "don isn t*2");
}

TEST_F(WordCutting, FragmentsAreLookedForBehindTheFinalSRule) {
  DropFinalS();
  EXPECT_EQ(Count("hasns"), "");
}

TEST_F(WordCutting, AllWordsOfALongTextAreFound) {
  std::string text;
  for (int i = 0; i < 5000; ++i) text += "dog cat; ";
  EXPECT_EQ(Count(text), "cat*5000 dog*5000");
  EXPECT_EQ(wordsRead, 10'000);
}

TEST_F(WordCutting, LineBreaksInATextSeparateWords) {
  EXPECT_EQ(Count("dog\r\ncat\tfox"), "cat dog fox");
}

TEST_F(WordCutting, TooManyWordsAreAnOverflow) {
  settings.SetAllowWordsFlags(choices);
  settings.BuildExtraWordChars();
  WordScanner scanner(settings, choices, lists, store, yield);
  scanner.SetWordsRead(std::numeric_limits<std::int32_t>::max() - 1);
  try {
    scanner.GetWords("one two ");
    FAIL() << "word number 2,147,483,648 was read";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
  EXPECT_EQ(scanner.WordsRead(), std::numeric_limits<std::int32_t>::max());
}

TEST(PrepareLine, LowersAndAppendsOneBlank) {
  std::string buffer;
  EXPECT_EQ(PrepareLine("Two WORDS", false, buffer), "two words ");
}

TEST(PrepareLine, LeavesSignificantLetterCase) {
  std::string buffer;
  EXPECT_EQ(PrepareLine("Two WORDS", true, buffer), "Two WORDS ");
}

TEST(PrepareLine, ForgetsTheLineBefore) {
  std::string buffer;
  (void)PrepareLine("a long line", false, buffer);
  EXPECT_EQ(PrepareLine("b", false, buffer), "b ");
  EXPECT_EQ(PrepareLine("", false, buffer), " ");
}

}  // namespace
}  // namespace quillomat
