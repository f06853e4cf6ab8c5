// Lines that are scanned many at a time, and those that are not.
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "base/run_time_error.h"
#include "engine/count_keeper.h"
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

/// Has kept what is nobody's: as if so many tokens that are no words had been met.
class KeeperOfNothing final : public CountKeeper {
 public:
  void BringCounts() noexcept override {}
};

TEST_F(PlainLines, NoCountIsLostWhereHardlyMoreMayBeKept) {
  generous.callsLeft = std::numeric_limits<std::uint32_t>::max();
  std::string line;
  for (int i = 0; i < 63; ++i) line += i == 2 || i == 40 ? "well--known " : "cats ";
  line += "dog\n";
  for (int room = 50; room < 90; ++room) {
    WordScanner scanner = Scanner();
    for (int i = 0; i < 2; ++i) scanner.GetWordsOfLines("cats well--known dog\n");
    KeeperOfNothing others;
    store.KeepCounts(others, std::numeric_limits<std::int32_t>::max() - room - 8);
    scanner.GetWordsOfLines(line);
    EXPECT_EQ(store.TallyWords().TotalIncludedCount, scanner.WordsRead()) << room;
    store.Clear();
  }
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

TEST_F(PlainLines, EntitiesOfLettersAreDecodedLineByLine) {
  EXPECT_EQ(CountLines("caf&eacute; the\nAT&T caf&eacute;s\nQ&A\n&Eacute;t&eacute;\n"),
            Count({"caf&eacute; the", "AT&T caf&eacute;s", "Q&A", "&Eacute;t&eacute;"}));
  EXPECT_EQ(CountLines("a & b\nna&iuml;ve; x &amp; y\n"),
            Count({"a & b", "na&iuml;ve; x &amp; y"}));
}

TEST_F(PlainLines, NamesOfEntitiesCountInAnyCaseWhereTheLineWouldBeLowerCased) {
  EXPECT_EQ(CountLines("CAF&EACUTE;\n"), "caf\u00E9");
  CaseIsSignificant();
  EXPECT_EQ(CountLines("CAF&EACUTE;\n"), Count("CAF&EACUTE;"));
}

TEST_F(PlainLines, EndBeforeALineThatIsNotUtf8) {
  EXPECT_EQ(PlainBytes("one\ncaf\u00E9\n"), 10U);
  EXPECT_EQ(PlainBytes("one\ncaf\xE9\nthree\n"), 4U);
  EXPECT_EQ(PlainBytes("caf\u00E9\none\ncaf\xE9\nthree\n"), 10U);
  EXPECT_EQ(PlainBytes("caf\u00E9\rcaf\xE9\nthree\n"), 0U);
}

TEST_F(PlainLines, CommentsOfCodeAreCutOut) {
  UsePreset("C");
  const std::vector<std::string> lines = {"int a; // one /* two",
                                          "b /* three // */ c /**/ d/e",
                                          "/* four",
                                          "five */",
                                          "six*/ f /*/ seven */ g",
                                          "h /*"};
  std::string text;
  for (const std::string& line : lines) text += line + (line.size() % 2 == 0 ? "\n" : "\r\n");
  const std::string together = CountLines(text);
  EXPECT_EQ(settings.OpenComment, 0);
  settings.OpenComment = -1;
  EXPECT_EQ(together, Count(lines));
  EXPECT_EQ(settings.OpenComment, 0);
  EXPECT_EQ(together, "a b c d e f g h int seven six");
}

TEST_F(PlainLines, TagsAndEntitiesOfHtmlAreCutOut) {
  UsePreset("HTML");
  const std::vector<std::string> lines = {
      "<p class=\"x\">one &nbsp;two&lt;three <b", "title=4>four</b> AT&T; five&x y; six",
      "&a--b; seven &#65; &toolongforanentityname; eight <!-- nine", "--> ten <>eleven"};
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  const std::string together = CountLines(text);
  EXPECT_EQ(settings.OpenComment, -1);
  EXPECT_EQ(together, Count(lines));
}

TEST_F(PlainLines, CommentToTheEndOfTheLineEndsAtACarriageReturnToo) {
  UsePreset("C");
  EXPECT_EQ(CountLines("one // two\rthree\n"), "one three");
}

TEST_F(PlainLines, OverflowLeavesTheCommentsBehindItAlone) {
  UsePreset("C");
  WordScanner scanner = Scanner();
  const std::string_view text = "one two three /* four\n";
  ASSERT_EQ(scanner.PlainLineBytes(text), text.size());
  scanner.SetWordsRead(std::numeric_limits<std::int32_t>::max() - 1);
  EXPECT_THROW(scanner.GetWordsOfLines(text), RunTimeError);
  EXPECT_EQ(settings.OpenComment, -1);
}

TEST_F(PlainLines, CommentThatIsOpenGoesOn) {
  UsePreset("C");
  static_cast<void>(Count("a /* b"));
  ASSERT_EQ(settings.OpenComment, 0);
  EXPECT_EQ(CountLines("c\nd */ e\n"), "e");
  EXPECT_EQ(settings.OpenComment, -1);
}

TEST_F(PlainLines, CommentThatEndsWithItsLineIsNotEndedByAnEmptyLine) {
  UsePreset("C");
  settings.OpenComment = 1;  // opened by other markers, in an earlier file
  EXPECT_EQ(CountLines("\r\n  \n"), "");
  EXPECT_EQ(settings.OpenComment, 1);
  EXPECT_EQ(CountLines(" \none\ntwo\n"), "two");
}

TEST_F(PlainLines, CommentThatNobodyLooksForStaysOpenWhenTheyAreStopped) {
  settings.OpenComment = 0;
  generous.stopAfter = 1;
  CountLines("one two\nthree\n");
  EXPECT_EQ(settings.OpenComment, 0);
  UsePreset("C");
  settings.OpenComment = -1;
  CountLines("one /* two\n");
  EXPECT_EQ(settings.OpenComment, -1);
}

TEST_F(PlainLines, EndBeforeALineWhereTwoHyphensMayBeTheBlankOfAMarker) {
  UseMarkers(" two", "");
  EXPECT_EQ(PlainBytes("one\none-two\n"), 4U);
  EXPECT_EQ(PlainBytes("one\none--two\n"), 4U);
}

TEST_F(PlainLines, EndBeforeALineWhereACommentOfLettersMayStart) {
  UseMarkers("rem", "");
  EXPECT_EQ(PlainBytes("one\nfive rum\n"), 4U);
  EXPECT_EQ(PlainBytes("one\nfive RUM\n"), 4U);
  UseMarkers("\u00A7", "");
  EXPECT_EQ(PlainBytes("one\n\u00A7\n"), 4U);
  EXPECT_EQ(PlainBytes("one\n&sect;\n"), 4U);
  UseMarkers("(", ")");
  EXPECT_EQ(PlainBytes("one (two)\n"), 10U);
  Allow(AllowFlag::kParentheses);
  EXPECT_EQ(PlainBytes("one (two)\n"), 0U);
}

TEST_F(PlainLines, ThereAreNoneInsideACommentOfLetters) {
  UseMarkers("rem", "end");
  static_cast<void>(Count("a rem b"));
  ASSERT_EQ(settings.OpenComment, 0);
  EXPECT_EQ(PlainBytes("one\n"), 0U);
}

TEST_F(PlainLines, ThereAreNoneInsideACommentWhoseMarkersAreOthersMeanwhile) {
  UseMarkers("", "END", "<", "");
  settings.OpenComment = 0;
  EXPECT_EQ(PlainBytes("end\nEND one\n"), 0U);
  EXPECT_EQ(Count("END one"), "one");
}

TEST_F(PlainLines, ThereAreNoneWhileEveryWordIsLookedAt) {
  generous.callsLeft = 1;
  EXPECT_EQ(PlainBytes("one\n"), 0U);
}

TEST_F(PlainLines, NoCommentIsOpenBehindTheWordAtWhichTheyStop) {
  UsePreset("C");
  std::string text;
  for (int i = 0; i < 100; ++i) text += "word\n";
  generous.callsLeft = 30;
  generous.stopAfter = 30;
  EXPECT_EQ(CountLines(text + "/* open\n"), "word*30");
  EXPECT_EQ(settings.OpenComment, -1);
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
