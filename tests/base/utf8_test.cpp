// Characters in UTF-8 strings.
#include "base/utf8.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillomat {
namespace {

/// One byte sequence for each way in which UTF-8 can be wrong.
const std::vector<std::string>& Malformed() {
  static const std::vector<std::string> sequences = {
      "\x80",              // a continuation without a lead
      "\xBF",              //
      "\xC0\x80",          // an overlong zero
      "\xC1\xBF",          // the longest overlong two-byte form
      "\xE0\x80\x80",      // overlong in three bytes
      "\xE0\x9F\xBF",      //
      "\xF0\x80\x80\x80",  // overlong in four bytes
      "\xF0\x8F\xBF\xBF",  //
      "\xED\xA0\x80",      // the first surrogate
      "\xED\xBF\xBF",      // the last surrogate
      "\xF4\x90\x80\x80",  // U+110000
      "\xF5\x80\x80\x80",  // leads that lead nowhere
      "\xF8\x88\x80\x80\x80",
      "\xFE",
      "\xFF",
      "\xC3",          // cut short
      "\xE2\x82",      //
      "\xF0\x9F\x98",  //
      "\xC3(",         // something else where a continuation belongs
      "\xE2\x82(",
      "\xF0\x9F\x98(",
  };
  return sequences;
}

TEST(IsWellFormedUtf8, AcceptsTheFirstAndLastCharacterOfEveryLength) {
  EXPECT_TRUE(IsWellFormedUtf8(""));
  EXPECT_TRUE(IsWellFormedUtf8("\x7F"));
  EXPECT_TRUE(IsWellFormedUtf8("\xC2\x80\xDF\xBF"));
  EXPECT_TRUE(IsWellFormedUtf8("\xE0\xA0\x80\xEF\xBF\xBF"));
  EXPECT_TRUE(IsWellFormedUtf8("\xED\x9F\xBF\xEE\x80\x80"));
  EXPECT_TRUE(IsWellFormedUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
}

TEST(IsWellFormedUtf8, RefusesOverlongSurrogateTruncatedAndStrayBytes) {
  for (const std::string& sequence : Malformed()) {
    EXPECT_FALSE(IsWellFormedUtf8(sequence)) << testing::PrintToString(sequence);
    EXPECT_FALSE(IsWellFormedUtf8("some text " + sequence + " and more"))
        << testing::PrintToString(sequence);
  }
}

TEST(IsAscii, LooksAtEveryByte) {
  EXPECT_TRUE(IsAscii(""));
  EXPECT_TRUE(IsAscii("sixteen bytes of it and 4 more"));
  for (std::size_t length = 1; length <= 20; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string text(length, 'a');
      text[place] = '\x80';
      EXPECT_FALSE(IsAscii(text)) << length << " bytes, byte " << place;
    }
  }
}

TEST(CharacterAt, TellsCodePointAndBytes) {
  const std::string text = "aé€🙂";
  const auto expect = [&text](std::size_t position, char32_t codePoint, std::size_t bytes) {
    const Utf8Character character = CharacterAt(text, position);
    EXPECT_EQ(character.codePoint, codePoint);
    EXPECT_EQ(character.bytes, bytes);
  };
  expect(0, U'a', 1);
  expect(1, U'é', 2);
  expect(3, U'€', 3);
  expect(6, U'🙂', 4);
}

TEST(CharacterAt, TakesAByteThatFitsNowhereForACharacter) {
  for (const std::string& sequence : Malformed()) {
    const Utf8Character character = CharacterAt(sequence, 0);
    EXPECT_EQ(character.bytes, 1U) << testing::PrintToString(sequence);
    EXPECT_EQ(character.codePoint, static_cast<unsigned char>(sequence[0]));
  }
}

TEST(CharacterCount, CountsCodePoints) {
  EXPECT_EQ(CharacterCount(""), 0U);
  EXPECT_EQ(CharacterCount("abc"), 3U);
  EXPECT_EQ(CharacterCount("aé€🙂"), 4U);
  EXPECT_EQ(CharacterCount("e\u0301"), 2U);
}

TEST(CharacterCount, CountsEveryByteThatFitsNowhere) {
  EXPECT_EQ(CharacterCount("\xC3"), 1U);
  EXPECT_EQ(CharacterCount("a\x80\x80z"), 4U);
  EXPECT_EQ(CharacterCount("\xE2\x82"), 2U);
}

TEST(BytesOfFirst, MeasuresWholeCharacters) {
  EXPECT_EQ(BytesOfFirst("aé€🙂", 0), 0U);
  EXPECT_EQ(BytesOfFirst("aé€🙂", 1), 1U);
  EXPECT_EQ(BytesOfFirst("aé€🙂", 2), 3U);
  EXPECT_EQ(BytesOfFirst("aé€🙂", 3), 6U);
  EXPECT_EQ(BytesOfFirst("aé€🙂", 4), 10U);
}

TEST(BytesOfFirst, EndsAtTheEndOfTheText) {
  EXPECT_EQ(BytesOfFirst("aé", 100), 3U);
  EXPECT_EQ(BytesOfFirst("", 1), 0U);
}

TEST(LastCharacterStart, FindsTheStartOfCharactersOfEveryLength) {
  EXPECT_EQ(LastCharacterStart(""), 0U);
  EXPECT_EQ(LastCharacterStart("a"), 0U);
  EXPECT_EQ(LastCharacterStart("xa"), 1U);
  EXPECT_EQ(LastCharacterStart("xé"), 1U);
  EXPECT_EQ(LastCharacterStart("x€"), 1U);
  EXPECT_EQ(LastCharacterStart("x🙂"), 1U);
  EXPECT_EQ(LastCharacterStart("🙂"), 0U);
}

TEST(LastCharacterStart, AgreesWithCountingFromTheFrontInMalformedText) {
  for (const std::string& sequence : Malformed()) {
    for (const std::string& text : {sequence, "a" + sequence, "é" + sequence}) {
      std::size_t expected = 0;
      for (std::size_t next = 0; next < text.size();) {
        expected = next;
        next += CharacterAt(text, next).bytes;
      }
      EXPECT_EQ(LastCharacterStart(text), expected) << testing::PrintToString(text);
    }
  }
}

TEST(AppendCharacter, WritesWhatCharacterAtReads) {
  for (const char32_t codePoint : {U'\u0001', U'\u007F', U'\u0080', U'\u07FF', U'\u0800', U'\uD7FF',
                                   U'\uE000', U'\uFFFF', U'\U00010000', U'\U0010FFFF'}) {
    std::string text;
    AppendCharacter(text, codePoint);
    EXPECT_TRUE(IsWellFormedUtf8(text));
    EXPECT_EQ(CharacterAt(text, 0).codePoint, codePoint);
    EXPECT_EQ(CharacterAt(text, 0).bytes, text.size());
  }
}

TEST(AppendCharacter, WritesTheShortestForm) {
  std::string text;
  AppendCharacter(text, U'a');
  AppendCharacter(text, U'é');
  AppendCharacter(text, U'€');
  AppendCharacter(text, U'🙂');
  EXPECT_EQ(text, "aé€🙂");
}

}  // namespace
}  // namespace quillomat
