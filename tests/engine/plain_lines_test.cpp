// Lines that are scanned many at a time, and those that are not.
#include <gtest/gtest.h>
#include <string>

#include "support/engine_fixture.h"

namespace quillomat {
namespace {

/// Lets many words be taken at a time, and stops after some of them if asked to.
class GenerousYield final : public ScanYield {
 public:
  bool Yield() override { return YieldFor(1); }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return callsLeft; }
  bool YieldFor(std::uint32_t calls) override {
    words += calls;
    return stopAfter != 0 && words >= stopAfter;
  }

  std::uint32_t callsLeft = 100;
  std::uint64_t words = 0;
  std::uint64_t stopAfter = 0;
};

class PlainLines : public EngineFixture {
 protected:
  WordScanner Scanner() {
    StartCount();
    return {settings, choices, lists, store, generous};
  }

  /// How many of the bytes are plain.
  std::size_t PlainBytes(std::string_view text) { return Scanner().PlainLineBytes(text); }

  std::string CountLines(std::string_view text) {
    WordScanner scanner = Scanner();
    EXPECT_EQ(scanner.PlainLineBytes(text), text.size());
    scanner.GetWordsOfLines(text);
    wordsRead = scanner.WordsRead();
    return Words();
  }

  GenerousYield generous;
};

TEST_F(PlainLines, AreCountedLikeOneAfterTheOther) {
  const std::string text = "The cat, the well-known Cat\r\n(and)  the well--known\n\n\tdon't\n";
  const std::string together = CountLines(text);
  const std::int32_t read = wordsRead;
  EXPECT_EQ(together,
            Count({"The cat, the well-known Cat", "(and)  the well--known", "", "\tdon't"}));
  EXPECT_EQ(read, wordsRead);
}

TEST_F(PlainLines, LettersOfLatinAreTokensAndOtherSignsAreNot) {
  EXPECT_EQ(CountLines("\u201Ccaf\u00E9\u201D\u2014Caf\u00E9 \u03B1\u03B2x\n"),
            Count({"\u201Ccaf\u00E9\u201D\u2014Caf\u00E9 \u03B1\u03B2x"}));
}

TEST_F(PlainLines, LongTokensAreWordsToo) {
  const std::string longWord(99, 'x');
  const std::string tooLong(101, 'y');
  EXPECT_EQ(CountLines(longWord + " " + tooLong + " " + longWord + "\n"), longWord + "*2");
  EXPECT_EQ(wordsRead, 3);
}

TEST_F(PlainLines, EndBeforeALineWithAnEntity) {
  EXPECT_EQ(PlainBytes("one\ntwo\ncaf&eacute;\nfour\n"), 8U);
  EXPECT_EQ(PlainBytes("&amp;\n"), 0U);
}

TEST_F(PlainLines, EndBeforeALineThatIsNotUtf8) {
  EXPECT_EQ(PlainBytes("one\ncaf\u00E9\n"), 10U);
  EXPECT_EQ(PlainBytes("one\ncaf\xE9\nthree\n"), 4U);
}

TEST_F(PlainLines, EndBeforeALineWhereACommentMayStart) {
  UsePreset("C");
  EXPECT_EQ(PlainBytes("int a;\nint b; // c\nint d;\n"), 7U);
  UseMarkers("rem", "");
  EXPECT_EQ(PlainBytes("one\nfive rum\n"), 4U);
  EXPECT_EQ(PlainBytes("one\nfive RUM\n"), 4U);
  UseMarkers("\u00A7", "");
  EXPECT_EQ(PlainBytes("one\n"), 0U);
}

TEST_F(PlainLines, ThereAreNoneInsideAComment) {
  UsePreset("C");
  EXPECT_EQ(PlainBytes("one\n"), 4U);
  static_cast<void>(Count("a /* b"));
  ASSERT_EQ(settings.OpenComment, 0);
  EXPECT_EQ(PlainBytes("one\n"), 0U);
}

TEST_F(PlainLines, ThereAreNoneWhileEveryWordIsLookedAt) {
  generous.callsLeft = 1;
  EXPECT_EQ(PlainBytes("one\n"), 0U);
}

TEST_F(PlainLines, StopWithinThem) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "word\n";
  generous.callsLeft = 30;
  generous.stopAfter = 90;
  EXPECT_EQ(CountLines(text), "word*90");
  EXPECT_EQ(wordsRead, 90);
}

TEST_F(PlainLines, TokensAreForgottenWhenTheStoreIsSortedOrCleared) {
  WordScanner scanner = Scanner();
  scanner.GetWordsOfLines("zebra apple zebra\n");
  EXPECT_EQ(Words(), "apple zebra*2");  // sorts the store
  scanner.GetWordsOfLines("zebra apple\n");
  EXPECT_EQ(Words(), "apple*2 zebra*3");
  store.Clear();
  scanner.GetWordsOfLines("zebra\n");
  EXPECT_EQ(Words(), "zebra");
}

TEST_F(PlainLines, ListsDecideOnceForEveryToken) {
  Ignore("the of");
  EXPECT_EQ(CountLines("The of cat THE cat\n"), "cat*2");
  EXPECT_EQ(wordsRead, 5);
}

TEST_F(PlainLines, ManyDifferentTokensAreAllCounted) {
  Allow(AllowFlag::kNumerals);
  std::string text;
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 60'000; ++i) text += "w" + std::to_string(i) + (i % 10 == 9 ? "\n" : " ");
  }
  static_cast<void>(CountLines(text));
  EXPECT_EQ(store.NumDifferentWords(), 60'000);
  for (std::int32_t i = 1; i <= 60'000; ++i) ASSERT_EQ(store.At(i).Count, 2);
}

}  // namespace
}  // namespace quillomat
