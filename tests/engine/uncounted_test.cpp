// What a count tells of letters and lines that it could not take as they are.
#include "engine/uncounted.h"

#include <string>

#include "base/byte_source.h"
#include "base/utf8.h"
#include "engine/char_class.h"
#include "engine/long_line.h"
#include "engine/parallel/threaded_scan.h"
#include "support/engine_fixture.h"

namespace quillomat {
namespace {

/// Puts the words of a text together as it is scanned.
class WordsTogether final : public ScanWitness {
 public:
  void OnText(std::string_view /*text*/) override {}
  void OnComment(std::string_view /*comment*/) override {}
  void OnToken(std::string_view token) override { words += token; }

  std::string words;
};

class UncountedTest : public EngineFixture {
 protected:
  Uncounted ScanOnThreads(const std::string& text) {
    StartCount();
    settings.Uncounted = {};
    TextSource source(text);
    constexpr std::size_t kThreads = 2;
    constexpr std::size_t kPieceBytes = 32;
    ThreadedScan scan({settings, store, wordsRead}, choices, lists, kThreads, kPieceBytes);
    scan.Scan(source, {[] { return false; }, [](std::int64_t) {}});
    return settings.Uncounted;
  }

  Uncounted ScanLongLine(const std::string& text) {
    StartCount();
    settings.Uncounted = {};
    WordScanner scanner(settings, choices, lists, store, yield);
    constexpr std::size_t kPartBytes = 16;
    LongLine line({settings, choices, lists, store, yield, scanner}, kPartBytes);
    line.Take(text);
    line.End();
    return settings.Uncounted;
  }

  static std::string Repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (; times > 0; --times) all += text;
    return all;
  }
};

TEST_F(UncountedTest, LettersBeyondLatin1AreForeignAndNothingElse) {
  EXPECT_EQ(CountForeignLetters("Łódź слово 漢字", true), 9);
  EXPECT_EQ(CountForeignLetters("naïve “don’t” — £5 ½ 123 × 🙂", true), 0);
  EXPECT_EQ(CountForeignLetters("Œuvre Ÿ", true), 2);
  EXPECT_EQ(CountForeignLetters("Ÿ", false), 0) << "its small letter is counted";
  EXPECT_EQ(CountForeignLetters(Repeated("a", 200) + "ж" + Repeated("é", 200) + "ж", true), 2);
}

TEST_F(UncountedTest, LettersOfLatin1ThatAreNoneByTheWesternRuleAreForeign) {
  EXPECT_EQ(CountForeignLetters("fº xªb µm", true), 3);
  EXPECT_EQ(CountForeignLetters("10\u00B2 \u00ABa\u00BB 5\u00B0", true), 0);
}

TEST_F(UncountedTest, LettersThatAreToldAreThoseThatAllLettersTake) {
  UseAllLetters();
  AllowNothing();
  StartCount();
  WordScanner scanner(settings, choices, lists, store, yield);
  std::string buffer;
  const auto wordsOf = [&](std::string_view text) {
    WordsTogether witness;
    scanner.ShowTokens(PrepareLine(text, true, buffer, LetterRule::kAll), witness);
    return std::move(witness.words);
  };
  const CharClass western(false, "", LetterRule::kWestern);
  for (const std::string before : {"", "x\u00AD", "\u02BC"}) {
    const std::string wordsBefore = wordsOf(before);
    const std::int64_t toldBefore = CountForeignLetters(before, true);
    for (char32_t codePoint = 1; codePoint < 0x110000; ++codePoint) {
      if (codePoint >= 0xD800 && codePoint <= 0xDFFF) continue;
      std::string text = before;
      AppendCharacter(text, codePoint);
      const bool taken = wordsOf(text) != wordsBefore;
      const bool counted = western.MayStartWord(text, before.size());
      const bool told = CountForeignLetters(text, true) != toldBefore;
      ASSERT_EQ(told, taken && !counted) << std::uint32_t{codePoint} << " behind " << before;
    }
  }
}

TEST_F(UncountedTest, AMarkBehindALetterIsALetter) {
  EXPECT_EQ(CountForeignLetters("Mu\u0308ller cafe\u0301", false), 2);
  EXPECT_EQ(CountForeignLetters("e\u0301\u0323 и\u0306 é\u0323", true), 5);
  EXPECT_EQ(CountForeignLetters("\u0301 a \u0301b ❤\uFE0F 1\uFE0F\u20E3 .\u0301", true), 0);
  EXPECT_EQ(CountForeignLetters(Repeated("a", 200) + Repeated("\u0301", 300), true), 300);
  EXPECT_EQ(CountForeignLetters(Repeated(" ", 200) + Repeated("\u0301", 300), true), 0);
  EXPECT_EQ(CountForeignLetters("\u0301\u0301 \u0301", true, true), 2);
}

TEST_F(UncountedTest, SignsAreNoneThoughUnicodeCallsThemLetters) {
  EXPECT_EQ(CountForeignLetters("don\u02BCt \u02BC\u0301", true), 0) << "the apostrophe";
  EXPECT_EQ(CountForeignLetters("Hawai\u02BBi", true), 1);
}

TEST_F(UncountedTest, AMarkIsBehindALetterWhereWhatStandsBetweenIsDropped) {
  EXPECT_EQ(CountForeignLetters("e\u00AD\u0301 e\u200D\u0301\uFEFF\u0323", true), 3);
  EXPECT_EQ(CountForeignLetters("\u00AD\u0301 1\u00AD\u0301", true), 0);
  const std::string pile = Repeated("\u00AD\u0301", 200'000);  // for ever, if it were quadratic
  EXPECT_EQ(CountForeignLetters("e" + pile, true), 200'000);
  EXPECT_EQ(ScanLongLine("e" + pile), (Uncounted{200'000, 0}));
}

TEST_F(UncountedTest, WhatATextEndsInIsALetterBelowItsMarks) {
  EXPECT_TRUE(EndsInLetter("a"));
  EXPECT_TRUE(EndsInLetter("é\u0323\u0301"));
  EXPECT_TRUE(EndsInLetter("\u0301", true));
  EXPECT_TRUE(EndsInLetter("a\u00AD\u0301\u200E"));
  EXPECT_FALSE(EndsInLetter("a \u0301", true));
  EXPECT_FALSE(EndsInLetter("a\u02BC\u0301"));
  EXPECT_FALSE(EndsInLetter(""));
}

TEST_F(UncountedTest, MarksKnowTheirLetterWhereALongLineIsCut) {
  for (std::size_t before = 0; before < 40; ++before) {
    const std::string text = Repeated("x", before) + " " + Repeated("नी\u0301", 40);
    const std::int64_t letters = CountForeignLetters(text, true);
    EXPECT_EQ(letters, 120);
    EXPECT_EQ(ScanLongLine(text), (Uncounted{letters, 0})) << before;
  }
}

TEST_F(UncountedTest, LettersAreCountedWhileTheirTextIs) {
  Count({"слово and word", "дело"});
  EXPECT_EQ(settings.Uncounted, (Uncounted{9, 0}));
}

TEST_F(UncountedTest, NoneIsForeignAmongAllLettersOrInAWordsFile) {
  ReadList({"слово"});
  UseAllLetters();
  Count("слово");
  EXPECT_EQ(settings.Uncounted, Uncounted());
}

TEST_F(UncountedTest, PiecesOnThreadsAreAddedUp) {
  const std::string text = Repeated("слово word\nword \xE9t\xE9\n", 30) + Repeated("word\n", 100);
  EXPECT_EQ(ScanOnThreads(text), (Uncounted{150, 30}));
}

TEST_F(UncountedTest, LongLineIsCountedAsWhatItIs) {
  EXPECT_EQ(ScanLongLine(Repeated("word слово ", 40)), (Uncounted{200, 0}));
  EXPECT_EQ(ScanLongLine(Repeated("word ", 40) + "\xE9t\xE9 " + Repeated("word ", 40)),
            (Uncounted{0, 1}));
}

}  // namespace
}  // namespace quillomat
