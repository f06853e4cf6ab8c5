// A line that is scanned in parts gives what it gives as a whole.
#include "engine/long_line.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "base/byte_source.h"
#include "base/line_decoder.h"
#include "base/text_helpers.h"
#include "engine/parallel/threaded_scan.h"
#include "support/engine_fixture.h"

namespace quillomat {
namespace {

class LongLineTest : public EngineFixture {
 protected:
  std::string Outcome(std::int32_t read) {
    return Words() + " read " + std::to_string(read) + " open " +
           std::to_string(settings.OpenComment);
  }

  void Begin(int open) {
    StartCount();
    settings.OpenComment = open;
  }

  std::string AsAWhole(const std::vector<std::string>& lines, int open) {
    Begin(open);
    WordScanner scanner(settings, choices, lists, store, yield);
    std::string buffer;
    for (const std::string& line : lines) {
      const std::string text = DecodeLine(line);
      const std::string_view trimmed = TrimBlanks(text);
      if (trimmed.empty()) continue;
      scanner.GetWords(
          PrepareLine(trimmed, IsSet(choices.caseSignificant), buffer, choices.letters));
    }
    return Outcome(scanner.WordsRead());
  }

  /// The bytes come `takenBytes` at a time.
  std::string InParts(const std::vector<std::string>& lines, int open, std::size_t partBytes,
                      std::size_t takenBytes) {
    Begin(open);
    WordScanner scanner(settings, choices, lists, store, yield);
    EXPECT_TRUE(scanner.CanTakeParts());
    for (const std::string& line : lines) {
      LongLine longLine({settings, choices, lists, store, yield, scanner}, partBytes);
      for (std::size_t i = 0; i < line.size(); i += takenBytes) {
        longLine.Take(std::string_view(line).substr(i, takenBytes));
      }
      longLine.End();
    }
    return Outcome(scanner.WordsRead());
  }

  std::string OnThreads(const std::vector<std::string>& lines, int open, std::size_t threads,
                        std::size_t pieceBytes) {
    Begin(open);
    std::string text;
    for (const std::string& line : lines) text += line + (text.size() % 2 == 0 ? "\r\n" : "\r");
    wordsRead = 0;
    ThreadedScan scan({settings, store, wordsRead}, choices, lists, threads, pieceBytes);
    TextSource source(text);
    scan.Scan(source, {[] { return false; }, [](std::int64_t) {}});
    return Outcome(wordsRead);
  }
};

/// What text of all letters is brought into normal form for.
std::string RandomLineOfAllLetters(std::mt19937_64& random) {
  static const std::vector<std::string> kPieces = {" ",
                                                   ",",
                                                   "a",
                                                   "the ",
                                                   "&",
                                                   ";",
                                                   "&eacute;",
                                                   "&am",
                                                   "p;",
                                                   "/*",
                                                   "*/",
                                                   "-",
                                                   "--",
                                                   "don't",
                                                   "/",
                                                   "&#8212;",
                                                   "\uFF06",
                                                   "\uFF1B",
                                                   "\u037E",
                                                   "\uFF0F",
                                                   "\uFF0A",
                                                   "\uFF0D",
                                                   "\u2010",
                                                   "\uFF41",
                                                   "\u200D",
                                                   "\u00AD",
                                                   "\u0301",
                                                   "\u0338",
                                                   "\u017Da",
                                                   "\u0439",
                                                   "\u4E2D",
                                                   "\uFB01",
                                                   "\u200D,\u200D",
                                                   "e\u0301",
                                                   "\u212A",
                                                   "\u0130",
                                                   "\u03C3\u03C2",
                                                   "\u2019",
                                                   "\u00E9",
                                                   "|"};
  std::string line;
  for (std::size_t parts = random() % 60; parts > 0; --parts) {
    line += kPieces[random() % kPieces.size()];
    if (random() % 40 == 0) {
      for (std::size_t joiners = random() % 40; joiners > 0; --joiners) line += "\u200D";
    }
  }
  if (random() % 6 == 0) line.insert(random() % (line.size() + 1), "\xE9");
  return line;
}

std::string RandomLine(std::mt19937_64& random) {
  static const std::vector<std::string> kPieces = {
      " ",      "  ",      ",",        "\t",       "a",           "the ",   "The,",  "-",
      "--",     "/*",      "*/",       "//",       "<",           ">",      "&",     ";",
      "&nbsp;", "&#8212;", "&eacute;", "&Eacute;", "caf&eacute;", "e-mail", "don't", "1,2",
      "x.y",    "'",       ":",        "&a,b;",    "Cafe ",       "_",      "&amp"};
  static const std::vector<std::string> kHighPieces = {
      "\u00E9", "caf\u00E9 ", "Caf\u00C9", "\u4E2D\u6587", "\u0416",
      "\u00D7", "\u0152",     "\u2014",    "\u0178",       "\u00DF"};
  const bool high = random() % 2 == 0;
  std::string line;
  for (std::size_t parts = random() % 60; parts > 0; --parts) {
    line += high && random() % 3 == 0 ? kHighPieces[random() % kHighPieces.size()]
                                      : kPieces[random() % kPieces.size()];
  }
  if (random() % 3 == 0) line.insert(random() % (line.size() + 1), "\xE9");
  if (random() % 9 == 0) line.insert(random() % (line.size() + 1), "\x80\xC3");
  return line;
}

TEST_F(LongLineTest, RandomLinesAreTheSameWhereverTheyAreCut) {
  std::mt19937_64 random(std::uint64_t{31});
  for (int round = 0; round < 6'000; ++round) {
    const bool all = round % 2 != 0;
    choices.letters = all ? LetterRule::kAll : LetterRule::kWestern;
    const auto randomLine = [&] {
      return all ? RandomLineOfAllLetters(random) : RandomLine(random);
    };
    switch (random() % 4) {
      case 0:
        UsePreset("C");
        break;
      case 1:
        UsePreset("HTML");
        break;
      case 2:
        UseMarkers("|", "|", "<", "");
        break;
      default:
        UseMarkers("&", ";", "", "");
    }
    AllowNothing();
    if (random() % 2 == 0) Allow(AllowFlag::kHyphen);
    if (random() % 3 == 0) Allow(AllowFlag::kApostrophe);
    if (random() % 3 == 0) Allow(AllowFlag::kNumerals);
    if (random() % 4 == 0) Allow(AllowFlag::kComma);
    choices.caseSignificant = random() % 2 == 0 ? CheckState::kChecked : CheckState::kUnchecked;
    const std::vector<std::string> lines = {randomLine(), randomLine()};
    const int open = static_cast<int>(random() % 3) - 1;
    const std::string expected = AsAWhole(lines, open);
    const std::size_t partBytes = 1 + random() % 12;
    ASSERT_EQ(InParts(lines, open, partBytes, 1 + random() % 20), expected)
        << round << ": " << lines[0] << "\n"
        << lines[1];
    if (round % 16 != 0) continue;
    const std::size_t threads = std::vector<std::size_t>{1, 2, 3, 8}[random() % 4];
    ASSERT_EQ(OnThreads(lines, open, threads, 1 + random() % 30), expected) << round;
  }
}

TEST_F(LongLineTest, RunsThatAreTooLongForAWordAreCutAsWordsAre) {
  Allow(AllowFlag::kColon);
  const std::string run(kMaxWordRun * 3 + 50, 'g');
  for (const std::string& line : {run, "x, " + run + " y", "\u00E9" + run + " z", run + "\xE9 b",
                                  ":" + run + "- c", run + "-" + run, "a--" + run + " d"}) {
    const std::string expected = AsAWhole({line}, -1);
    EXPECT_EQ(InParts({line}, -1, LongLine::kPartBytes, 10'000), expected) << line.substr(0, 5);
  }
}

TEST_F(LongLineTest, BrokenOffWithinACharacterIsReadAsItHasBegun) {
  const std::string line = "déjà naïve élan ça dé";
  for (std::size_t bytes = 0; bytes <= line.size(); ++bytes) {
    Begin(-1);
    WordScanner scanner(settings, choices, lists, store, yield);
    LongLine longLine({settings, choices, lists, store, yield, scanner}, 6);
    longLine.Take(std::string_view(line).substr(0, bytes));
    longLine.BreakOff();
    const std::string words = Words();
    EXPECT_EQ(settings.Uncounted, Uncounted()) << bytes;
    EXPECT_EQ(words.find("Ã"), std::string::npos) << words;
    EXPECT_EQ(words.find("ã"), std::string::npos) << words;
    EXPECT_LE(scanner.WordsRead(), 4) << "the last word may go on";
  }
}

TEST_F(LongLineTest, LongLineOfALargeTextIsScannedBetweenItsNeighbours) {
  std::string longLine;
  for (int i = 0; i < 5'000; ++i) longLine += "word w" + std::to_string(i % 40) + "\u00E9; ";
  const std::vector<std::string> lines = {"before it", longLine, "behind it", longLine + "\xE9 x",
                                          "the end"};
  const std::string expected = AsAWhole(lines, -1);
  EXPECT_EQ(InParts(lines, -1, 1'000, 3'000), expected);
  for (const std::size_t threads : {1U, 2U, 3U, 8U}) {
    EXPECT_EQ(OnThreads(lines, -1, threads, 4'000), expected) << threads;
  }
}

TEST(LongLineOfADecoder, ComesInPartsUpToItsEnd) {
  const std::string longLine(50'000, 'x');
  for (const std::string end : {"\n", "\r\n", "\r", ""}) {
    const std::string text = "a\n" + longLine + end + (end.empty() ? "" : "b\n");
    TextSource source(text);
    LineDecoder lines(source);
    EXPECT_FALSE(lines.NextLines().empty());
    lines.SkipLines(2);
    EXPECT_TRUE(lines.NextLines().empty());
    ASSERT_TRUE(lines.IsAtLongLine());
    std::string together;
    for (std::string_view part = lines.NextPartOfLine(); !part.empty();
         part = lines.NextPartOfLine()) {
      together += part;
    }
    EXPECT_EQ(together, longLine);
    EXPECT_EQ(lines.NextLines(), end.empty() ? "" : "b\n");
  }
}

}  // namespace
}  // namespace quillomat
