// Which characters make up words.
#include "engine/char_class.h"

#include <gtest/gtest.h>
#include <string>

#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr std::string_view kAllExtras = "0123456789@,.()/\\:_'-";

std::string Text(char32_t codePoint) {
  std::string text;
  AppendCharacter(text, codePoint);
  return text;
}

bool IsLetter(char32_t codePoint) {
  return (codePoint >= 'A' && codePoint <= 'Z') || (codePoint >= 'a' && codePoint <= 'z') ||
         (codePoint >= 192 && codePoint <= 214) || (codePoint >= 216 && codePoint <= 246) ||
         (codePoint >= 248 && codePoint <= 255);
}

TEST(IsWordChar, WithoutExtrasExactlyTheLatin1LettersAreWordCharacters) {
  for (char32_t codePoint = 1; codePoint < 0x3000; ++codePoint) {
    ASSERT_EQ(IsWordChar(Text(codePoint), false, {}), IsLetter(codePoint))
        << static_cast<unsigned>(codePoint);
  }
}

TEST(IsWordChar, MultiplicationAndDivisionSignsAreNone) {
  EXPECT_FALSE(IsWordChar("×", true, kAllExtras));
  EXPECT_FALSE(IsWordChar("÷", true, kAllExtras));
}

TEST(IsWordChar, AccentedLettersAlwaysAre) {
  for (const std::string_view letter : {"é", "ß", "ÿ", "À", "Ö", "Ø", "ö", "ø"}) {
    EXPECT_TRUE(IsWordChar(letter, false, {})) << letter;
  }
}

TEST(IsWordChar, DigitsOnlyWhenAllowed) {
  for (const std::string_view digit : {"0", "5", "9"}) {
    EXPECT_TRUE(IsWordChar(digit, true, {}));
    EXPECT_FALSE(IsWordChar(digit, false, {}));
    EXPECT_TRUE(IsWordChar(digit, false, "0123456789"));
  }
  EXPECT_FALSE(IsWordChar("/", true, {}));
  EXPECT_FALSE(IsWordChar(":", true, {}));
}

TEST(IsWordChar, ExtrasAreConsultedForAsciiOnly) {
  EXPECT_TRUE(IsWordChar("-", false, "-'"));
  EXPECT_FALSE(IsWordChar("_", false, "-'"));
  EXPECT_FALSE(IsWordChar("·", false, "·"));
  EXPECT_FALSE(IsWordChar("×", false, "×"));
}

TEST(IsWordChar, NothingAbove255Is) {
  for (const std::string_view character : {"Š", "œ", "Ÿ", "Ж", "ﬁ", "€", "’", "🙂"}) {
    EXPECT_FALSE(IsWordChar(character, true, kAllExtras)) << character;
  }
}

TEST(IsWordChar, EmptyTextIsNone) {
  EXPECT_FALSE(IsWordChar("", true, kAllExtras));
}

TEST(CountWordChars, CountsFromTheStartToTheFirstOther) {
  EXPECT_EQ(CountWordChars("two words", 1, false, {}), 3U);
  EXPECT_EQ(CountWordChars("two words", 5, false, {}), 5U);
  EXPECT_EQ(CountWordChars("two words", 4, false, {}), 0U);
}

TEST(CountWordChars, EndsAtTheEndOfTheText) {
  EXPECT_EQ(CountWordChars("word", 1, false, {}), 4U);
  EXPECT_EQ(CountWordChars("word", 5, false, {}), 0U);
  EXPECT_EQ(CountWordChars("", 1, false, {}), 0U);
}

TEST(CountWordChars, CountsCharactersNotBytes) {
  EXPECT_EQ(CountWordChars("né né", 1, false, {}), 2U);
  EXPECT_EQ(CountWordChars("né étés", 4, false, {}), 4U);
}

TEST(CountWordChars, FollowsTheSettings) {
  EXPECT_EQ(CountWordChars("e-mail4u", 1, false, {}), 1U);
  EXPECT_EQ(CountWordChars("e-mail4u", 1, false, "-"), 6U);
  EXPECT_EQ(CountWordChars("e-mail4u", 1, true, "-"), 8U);
}

TEST(CountWordChars, NeverCountsPast65000) {
  EXPECT_EQ(CountWordChars(std::string(65'000, 'a'), 1, false, {}), 65'000U);
  EXPECT_EQ(CountWordChars(std::string(65'001, 'a'), 1, false, {}), 65'000U);
  std::string accented;
  for (int i = 0; i < 65'010; ++i) accented += "é";
  EXPECT_EQ(CountWordChars(accented, 1, false, {}), 65'000U);
}

TEST(ContainsAnyOf, FindsAnyCharacterOfTheSet) {
  EXPECT_TRUE(ContainsAnyOf("f(x", "()"));
  EXPECT_TRUE(ContainsAnyOf("x)", "()"));
  EXPECT_FALSE(ContainsAnyOf("fx", "()"));
  EXPECT_FALSE(ContainsAnyOf("", "()"));
  EXPECT_FALSE(ContainsAnyOf("fx", ""));
}

TEST(CharClass, SixSignsNeverStartAWord) {
  const CharClass everything(true, kAllExtras);
  for (const char ch : std::string_view("-'.,()")) {
    const std::string text(1, ch);
    EXPECT_FALSE(everything.MayStartWord(text, 0)) << text;
    EXPECT_EQ(everything.WordCharBytes(text, 0), 1U) << text;
  }
}

TEST(CharClass, OtherAllowedSignsAndDigitsMayStartAWord) {
  const CharClass everything(true, kAllExtras);
  for (const char ch : std::string_view(":_\\/@0123456789")) {
    EXPECT_TRUE(everything.MayStartWord(std::string(1, ch), 0)) << ch;
  }
  const CharClass lettersOnly;
  for (const char ch : std::string_view(":_\\/@0123456789")) {
    EXPECT_FALSE(lettersOnly.MayStartWord(std::string(1, ch), 0)) << ch;
  }
}

TEST(CharClass, LettersMayStartAWordAndTellTheirBytes) {
  const CharClass lettersOnly;
  EXPECT_TRUE(lettersOnly.MayStartWord("a", 0));
  EXPECT_TRUE(lettersOnly.MayStartWord("é", 0));
  EXPECT_FALSE(lettersOnly.MayStartWord("×", 0));
  EXPECT_EQ(lettersOnly.WordCharBytes("xé", 0), 1U);
  EXPECT_EQ(lettersOnly.WordCharBytes("xé", 1), 2U);
}

TEST(CharClass, AgreesWithIsWordCharForEveryCharacter) {
  const CharClass everything(true, kAllExtras);
  for (char32_t codePoint = 1; codePoint < 0x500; ++codePoint) {
    const std::string text = Text(codePoint);
    const std::size_t expected = IsWordChar(text, true, kAllExtras) ? text.size() : 0;
    ASSERT_EQ(everything.WordCharBytes(text, 0), expected) << text;
  }
}

}  // namespace
}  // namespace quillomat
