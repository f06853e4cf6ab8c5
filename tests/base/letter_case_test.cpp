// Lower case without a locale.
#include "base/letter_case.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string>

#include "base/utf8.h"

namespace quillomat {
namespace {

/// The lower case of a character by the rule's own words.
char32_t LowerByTheRule(char32_t codePoint) {
  if (codePoint >= U'A' && codePoint <= U'Z') return codePoint + 32;
  if (codePoint >= 0xC0 && codePoint <= 0xDE && codePoint != 0xD7) return codePoint + 32;
  switch (codePoint) {
    case U'\u0160':
      return U'\u0161';
    case U'\u017D':
      return U'\u017E';
    case U'\u0152':
      return U'\u0153';
    case U'\u0178':
      return U'\u00FF';
    default:
      return codePoint;
  }
}

TEST(LetterCase, EveryCharacterFollowsTheRule) {
  for (char32_t codePoint = 1; codePoint < 0x3000; ++codePoint) {
    std::string character;
    std::string expected;
    AppendCharacter(character, codePoint);
    AppendCharacter(expected, LowerByTheRule(codePoint));
    ASSERT_EQ(LowerCase(character), expected) << static_cast<std::uint32_t>(codePoint);
  }
}

TEST(LetterCase, AsciiCapitalsBecomeSmall) {
  EXPECT_EQ(LowerCase("The QUICK fox, 42 @[`{"), "the quick fox, 42 @[`{");
}

TEST(LetterCase, Latin1CapitalsBecomeSmall) {
  EXPECT_EQ(LowerCase("ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ"), "àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ");
}

TEST(LetterCase, MultiplicationSignStays) {
  EXPECT_EQ(LowerCase("×"), "×");
}

TEST(LetterCase, FourWindowsCapitalsBecomeSmall) {
  EXPECT_EQ(LowerCase("ŠŽŒŸ"), "šžœÿ");
}

TEST(LetterCase, OtherAlphabetsStay) {
  EXPECT_EQ(LowerCase("ŁŞİΣЖ🙂ẞ"), "ŁŞİΣЖ🙂ẞ");
}

TEST(LetterCase, SmallLettersAndSharpSStay) {
  EXPECT_EQ(LowerCase("aéßÿ÷"), "aéßÿ÷");
}

TEST(LetterCase, EmptyTextStaysEmpty) {
  EXPECT_EQ(LowerCase(""), "");
}

TEST(LetterCase, KeepsTheNumberOfBytes) {
  const std::string text = "ŸÄß×ŠA🙂";
  EXPECT_EQ(LowerCase(text).size(), text.size());
}

TEST(LetterCase, InPlaceGivesTheSame) {
  std::string text = "ÉCOLE Nº 5";
  MakeLowerCase(text);
  EXPECT_EQ(text, "école nº 5");
}

TEST(LetterCase, CapitalBehindAByteThatFitsNowhereBecomesSmallToo) {
  EXPECT_EQ(LowerCase("\xC3"
                      "A"),
            "\xC3"
            "a");
  EXPECT_EQ(LowerCase("\xC5"
                      "B"),
            "\xC5"
            "b");
  EXPECT_EQ(LowerCase("\xFF"
                      "C"),
            "\xFF"
            "c");
}

TEST(LetterCase, ALoneLeadByteAtTheEndStays) {
  EXPECT_EQ(LowerCase("A\xC3"), "a\xC3");
}

TEST(LetterCase, EqualityIgnoresCaseInEveryKnownAlphabet) {
  EXPECT_TRUE(EqualIgnoringCase("École", "éCOLE"));
  EXPECT_TRUE(EqualIgnoringCase("ŸŠŽŒ", "ÿšžœ"));
  EXPECT_TRUE(EqualIgnoringCase("", ""));
}

TEST(LetterCase, EqualityLooksAtAccentsAndLength) {
  EXPECT_FALSE(EqualIgnoringCase("ecole", "école"));
  EXPECT_FALSE(EqualIgnoringCase("abc", "ab"));
  EXPECT_FALSE(EqualIgnoringCase("×", "÷"));
}

}  // namespace
}  // namespace quillomat
