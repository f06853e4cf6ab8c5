// The rules about single words.
#include "engine/word_rules.h"

#include <gtest/gtest.h>
#include <string>

#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr std::string_view kVowels = "AEIOUaeiouÀÁÂÃÄÅÆÈÉÊËÌÍÎÏÒÓÔÕÖØÙÚÛÜàáâãäåæèéêëìíîïòóôõöøùúûü";
constexpr std::string_view kLowerVowels = "aeiouàáâãäåæèéêëìíîïòóôõöøùúûü";

TEST(TrimTrailingChars, TakesOffEveryTrailingCharacterOfTheSet) {
  EXPECT_EQ(TrimTrailingChars("3.14.", "-'.,:()"), "3.14");
  EXPECT_EQ(TrimTrailingChars("word-'.,:()", "-'.,:()"), "word");
}

TEST(TrimTrailingChars, TakesNothingOffTheFront) {
  EXPECT_EQ(TrimTrailingChars("::a", ":"), "::a");
}

TEST(TrimTrailingChars, MayLeaveNothing) {
  EXPECT_EQ(TrimTrailingChars("::", ":"), "");
  EXPECT_EQ(TrimTrailingChars("", ":"), "");
}

TEST(TrimTrailingChars, LeavesCharactersThatAreNotInTheSet) {
  EXPECT_EQ(TrimTrailingChars("rock_", "-'.,:()"), "rock_");
  EXPECT_EQ(TrimTrailingChars("café", "-'.,:()"), "café");
}

TEST(IsVowel, ExactlyTheSixtyVowelsAre) {
  int vowels = 0;
  for (char32_t codePoint = 1; codePoint < 0x500; ++codePoint) {
    std::string character;
    AppendCharacter(character, codePoint);
    const bool vowel = kVowels.find(character) != std::string_view::npos;
    const bool lowerVowel = kLowerVowels.find(character) != std::string_view::npos;
    ASSERT_EQ(IsVowel(character, false), vowel) << character;
    ASSERT_EQ(IsVowel(character, true), lowerVowel) << character;
    if (vowel) ++vowels;
  }
  EXPECT_EQ(vowels, 60);
}

TEST(IsVowel, YIsNone) {
  for (const std::string_view letter : {"y", "Y", "ý", "Ý", "ÿ"}) {
    EXPECT_FALSE(IsVowel(letter, false)) << letter;
  }
}

TEST(IsVowel, LooksAtTheFirstCharacterOnly) {
  EXPECT_TRUE(IsVowel("ab", true));
  EXPECT_FALSE(IsVowel("ba", true));
}

TEST(IsVowel, EmptyTextIsNone) {
  EXPECT_FALSE(IsVowel("", false));
}

TEST(IsContractionStem, KnowsTheElevenStems) {
  for (const std::string_view stem : {"aren", "couldn", "didn", "doesn", "hadn", "hasn", "isn",
                                      "shouldn", "wasn", "weren", "wouldn"}) {
    EXPECT_TRUE(IsContractionStem(stem)) << stem;
  }
}

TEST(IsContractionStem, AnyEndingOfAStemIsOne) {
  for (const std::string_view ending : {"n", "dn", "ldn", "en", "ren", "sn", "eren"}) {
    EXPECT_TRUE(IsContractionStem(ending)) << ending;
  }
}

TEST(IsContractionStem, IgnoresLetterCase) {
  EXPECT_TRUE(IsContractionStem("Isn"));
  EXPECT_TRUE(IsContractionStem("COULDN"));
}

TEST(IsContractionStem, OtherWordsAreNone) {
  for (const std::string_view word : {"don", "won", "is", "could", "are", "on", "an", "eaten"}) {
    EXPECT_FALSE(IsContractionStem(word)) << word;
  }
}

TEST(DropFinalS, DropsTheSOfPlurals) {
  EXPECT_EQ(DropFinalS("cats"), "cat");
  EXPECT_EQ(DropFinalS("boys"), "boy");
  EXPECT_EQ(DropFinalS("news"), "new");
  EXPECT_EQ(DropFinalS("its"), "it");
}

TEST(DropFinalS, KeepsItBehindAVowelOrAnotherS) {
  for (const std::string_view word : {"gas", "this", "yes", "glass", "bus", "chaos"}) {
    EXPECT_EQ(DropFinalS(word), word);
  }
}

TEST(DropFinalS, KeepsItBehindAnAccentedVowel) {
  EXPECT_EQ(DropFinalS("cafés"), "cafés");
  EXPECT_EQ(DropFinalS("garçs"), "garç");
  EXPECT_EQ(DropFinalS("ÿs"), "ÿs");
  EXPECT_EQ(DropFinalS("aÿs"), "aÿ");
}

TEST(DropFinalS, KeepsSciences) {
  for (const std::string_view word : {"physics", "ics", "PhysICs", "maths", "Maths", "MATHs"}) {
    EXPECT_EQ(DropFinalS(word), word);
  }
  EXPECT_EQ(DropFinalS("aftermaths"), "aftermath");
}

TEST(DropFinalS, KeepsWordsOfTwoCharacters) {
  for (const std::string_view word : {"is", "ms", "s", "", "és", "ðs"}) {
    EXPECT_EQ(DropFinalS(word), word);
  }
}

TEST(DropFinalS, KeepsThePossessive) {
  EXPECT_EQ(DropFinalS("John's"), "John's");
  EXPECT_EQ(DropFinalS("it's"), "it's");
}

TEST(DropFinalS, NeverDropsACapitalS) {
  EXPECT_EQ(DropFinalS("CATS"), "CATS");
  EXPECT_EQ(DropFinalS("CATs"), "CAT");
}

TEST(DropFinalS, CapitalVowelIsNoVowelHere) {
  EXPECT_EQ(DropFinalS("GAs"), "GA");
  EXPECT_EQ(DropFinalS("ÉÉs"), "ÉÉ");
}

TEST(DropFinalS, DropsAtMostOneCharacterAndTrimsNothing) {
  EXPECT_EQ(DropFinalS("a-s"), "a-");
  EXPECT_EQ(DropFinalS("cats-s"), "cats-");
  EXPECT_EQ(DropFinalS("3s"), "3s");
  EXPECT_EQ(DropFinalS("90s"), "90");
}

TEST(IsApostropheFragment, SAndTAndStemsAre) {
  for (const std::string_view word : {"s", "t", "S", "T", "isn", "Weren", "n"}) {
    EXPECT_TRUE(IsApostropheFragment(word)) << word;
  }
}

TEST(IsApostropheFragment, WhatElseAContractionLeavesIsNone) {
  for (const std::string_view word : {"don", "won", "ll", "re", "ve", "d", "m", "st", "ß"}) {
    EXPECT_FALSE(IsApostropheFragment(word)) << word;
  }
}

TEST(IsRepetition, OneCharacterOverAndOver) {
  for (const std::string_view word : {"aaa", "zzz", "a", "111", "éé", "--"}) {
    EXPECT_TRUE(IsRepetition(word)) << word;
  }
}

TEST(IsRepetition, LooksAtLetterCaseAndAccents) {
  for (const std::string_view word : {"Bbb", "aab", "abab", "eé", "éè", ""}) {
    EXPECT_FALSE(IsRepetition(word)) << word;
  }
}

TEST(DropFinalS, OfAllLettersWesternOnesFollowTheWesternRule) {
  for (char32_t letter = 0xC0; letter <= 0xFF; ++letter) {
    if (letter == 0xD7 || letter == 0xF7) continue;
    std::string word = "x";
    AppendCharacter(word, letter);
    word += "s";
    EXPECT_EQ(DropFinalS(word, LetterRule::kAll), DropFinalS(word)) << word;
  }
}

TEST(LacksVowel, OfAllLettersWesternOnesFollowTheWesternRuleButYWithAccents) {
  for (char32_t letter = 0xC0; letter <= 0xFF; ++letter) {
    if (letter == 0xD7 || letter == 0xF7) continue;
    std::string word = "x";
    AppendCharacter(word, letter);
    const bool y = letter == 0xDD || letter == 0xFD || letter == 0xFF;
    EXPECT_EQ(LacksVowel(word, true, LetterRule::kAll), LacksVowel(word, true) && !y) << word;
    EXPECT_EQ(LacksVowel(word, false, LetterRule::kAll), LacksVowel(word, false)) << word;
  }
}

TEST(IsRomanNumeral, BelowXlOnlyIVAndXOccurInAnyOrder) {
  for (const std::string_view word : {"XIV", "xiv", "VIX", "I", "i", "IIII", "VV", "XIVX"}) {
    EXPECT_TRUE(IsRomanNumeral(word, true)) << word;
  }
  for (const std::string_view word : {"XL", "MIX", "LI", "vim", "civic"}) {
    EXPECT_FALSE(IsRomanNumeral(word, true)) << word;
  }
}

TEST(IsRomanNumeral, GeneralTestTakesAllSevenLetters) {
  for (const std::string_view word : {"MDCLXVI", "mix", "XL", "LI", "ill", "mild"}) {
    EXPECT_TRUE(IsRomanNumeral(word, false)) << word;
  }
  EXPECT_FALSE(IsRomanNumeral("mixed", false));
}

TEST(IsRomanNumeral, GeneralTestKnowsEightEnglishWords) {
  for (const std::string_view word :
       {"DIM", "mid", "Vim", "cid", "LID", "livid", "CIVIL", "dill"}) {
    EXPECT_FALSE(IsRomanNumeral(word, false)) << word;
  }
}

TEST(LacksVowel, WithYLooksForYToo) {
  for (const std::string_view word : {"by", "gym", "rhythm", "Y"}) {
    EXPECT_FALSE(LacksVowel(word, true)) << word;
    EXPECT_TRUE(LacksVowel(word, false)) << word;
  }
}

TEST(LacksVowel, AnyVowelIsEnough) {
  for (const std::string_view word : {"a", "tree", "øl", "ÜBR", "bcdÉ"}) {
    EXPECT_FALSE(LacksVowel(word, true)) << word;
  }
}

TEST(LacksVowel, ConsonantsAndSignsAreNoVowels) {
  for (const std::string_view word : {"hmm", "www", "3", "ÿ", "ý", "ß", ""}) {
    EXPECT_TRUE(LacksVowel(word, true)) << word;
  }
}

}  // namespace
}  // namespace quillomat
