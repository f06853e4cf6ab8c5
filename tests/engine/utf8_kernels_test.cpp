#include "engine/utf8_kernels.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "engine/normal_text.h"
#include "engine/uncounted.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

template <typename Check>
void ForEveryScalarValue(Check check) {
  for (char32_t codePoint = 0x80; codePoint < 0x110000; ++codePoint) {
    if (codePoint < 0xD800 || codePoint > 0xDFFF) check(codePoint);
    if (testing::Test::HasFailure()) return;
  }
}

std::string TextOf(char32_t codePoint) {
  std::string text;
  AppendCharacter(text, codePoint);
  return text;
}

/// To be shown.
std::uint32_t Number(char32_t codePoint) {
  return codePoint;
}

std::vector<std::uint64_t> SuspectsOf(std::string_view text) {
  std::vector<std::uint64_t> masks(Utf8Blocks(text));
  MarkSuspects(text, 0, masks);
  return masks;
}

/// Bytes that begin, continue, or do not belong to characters, and now and then whole ones.
std::string NearlyText(std::mt19937_64& random, std::size_t bytes) {
  static constexpr char32_t kCharacters[] = {'a',    0x80,   0x7FF,   0x800,   0xD7FF,
                                             0xE000, 0xFFFF, 0x10000, 0x10FFFF};
  std::string text;
  while (text.size() < bytes) AppendCharacter(text, kCharacters[random() % 9]);
  text.resize(bytes);
  if (bytes > 0 && random() % 2 == 0) {
    static constexpr unsigned char kBytes[] = {0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1,
                                               0xC2, 0xE0, 0xED, 0xEF, 0xF0, 0xF4, 0xF5, 0xFF};
    text[random() % bytes] = static_cast<char>(kBytes[random() % sizeof kBytes]);
  }
  return text;
}

TEST(Utf8Kernels, WellFormedIsWhatTheCarefulWaySays) {
  std::mt19937_64 random(std::uint64_t{21});
  std::size_t wellFormed = 0;
  for (int i = 0; i < 40'000; ++i) {
    const std::string text = NearlyText(random, random() % 200);
    const bool expected = IsWellFormedUtf8(text);
    ASSERT_EQ(IsWellFormedText(text), expected) << testing::PrintToString(text);
    wellFormed += expected ? 1 : 0;
  }
  EXPECT_GT(wellFormed, 4'000U);
}

TEST(Utf8Kernels, EveryPairOfBytesBehindEachLeadIsJudgedAsTheCarefulWayDoes) {
  for (unsigned lead = 0x80; lead < 0x100; ++lead) {
    for (unsigned next = 0; next < 0x100; ++next) {
      for (const char* const rest : {"", "\x80", "\x80\x80", "\xBF\xBF", "\xBF\xBF\xBF"}) {
        const std::string character = {static_cast<char>(lead), static_cast<char>(next)};
        const std::string text = std::string(62, 'a') + character + rest;  // over two blocks
        ASSERT_EQ(IsWellFormedText(text), IsWellFormedUtf8(text)) << lead << ' ' << next;
      }
    }
  }
}

TEST(Utf8Kernels, WhatIsNotMarkedIsInNormalForm) {
  const UnicodeTraits& traits = UnicodeTraits::Get();
  ForEveryScalarValue([&](char32_t codePoint) {
    const std::string text = TextOf(codePoint);
    const bool marked = SuspectsOf(text)[0] != 0;
    EXPECT_TRUE(marked || !traits.Is(codePoint, CodePointTraits::kUnsettled)) << Number(codePoint);
    if (marked) {
      EXPECT_EQ(SuspectsOf(text)[0], 2U) << "its second byte";
    }
  });
}

TEST(Utf8Kernels, MarksStandWhereTheCharacterStands) {
  for (std::size_t before = 0; before < 200; ++before) {
    const std::string text = std::string(before, 'a') + "\u0301" + std::string(70, 'b');
    const std::vector<std::uint64_t> masks = SuspectsOf(text);
    for (std::size_t block = 0; block < masks.size(); ++block) {
      const bool here = (before + 1) / kUtf8Block == block;
      EXPECT_EQ(masks[block], here ? std::uint64_t{1} << (before + 1) % kUtf8Block : 0U) << before;
    }
  }
}

TEST(Utf8Kernels, ForeignLettersAreThoseBeyondLatin1AndThreeOfItButTheApostrophe) {
  const UnicodeTraits& traits = UnicodeTraits::Get();
  ForEveryScalarValue([&](char32_t codePoint) {
    const bool oneOfThree = codePoint == 0xAA || codePoint == 0xB5 || codePoint == 0xBA;
    const bool beyond = codePoint > 0xFF && codePoint != 0x2BC;
    const bool foreign = oneOfThree || (beyond && traits.Is(codePoint, CodePointTraits::kLetter));
    const std::string text = TextOf(codePoint);
    EXPECT_EQ(CountForeignLetters(text, true), foreign ? 1 : 0) << Number(codePoint);
    const bool lowered = codePoint == 0x178;
    EXPECT_EQ(CountForeignLetters(text, false), foreign && !lowered ? 1 : 0) << Number(codePoint);
    const bool mark = traits.Is(codePoint, CodePointTraits::kMark);
    EXPECT_EQ(CountForeignLetters("a" + text, true), foreign || mark ? 1 : 0) << Number(codePoint);
  });
}

TEST(Utf8Kernels, ForeignLettersAreCountedWhereverTheyStand) {
  std::mt19937_64 random(std::uint64_t{22});
  static constexpr char32_t kCharacters[] = {
      'a',   ' ',    0xAA,   0xAB,   0xB5,   0xBA,    0xE9, 0x142, 0x178, 0x387,  0x3C2,  0x301,
      0x44F, 0x2019, 0x2071, 0x4E00, 0xFF21, 0x10400, 0xAD, 0x2BC, 0x2BB, 0x200D, 0x202E, 0xFEFF};
  for (int i = 0; i < 300; ++i) {
    std::string text;
    std::int64_t letters = 0;
    for (std::size_t length = random() % 6'000; length > 0; --length) {
      const char32_t character = kCharacters[random() % std::size(kCharacters)];
      letters += CountForeignLetters(TextOf(character), true, EndsInLetter(text));
      AppendCharacter(text, character);
    }
    ASSERT_EQ(CountForeignLetters(text, true), letters);
  }
}

TEST(Utf8Kernels, NormalFormOfALongTextIsThatOfItsParts) {
  for (std::size_t before = 4'000; before < 4'200; ++before) {
    const std::string start = "aqu\u00ED" + std::string(before, '.');
    const std::string text = start + "e\u0301 aqu\u00ED \u2019" + start;
    std::string scratch;
    ASSERT_EQ(NormalForm(text, DottedCapitalI::kKept, scratch),
              start + "\u00E9 aqu\u00ED '" + start);
  }
}

}  // namespace
}  // namespace quillomat
