// Lines across the borders of the blocks in which a file is read.
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "base/decoded_lines.h"

namespace quillomat {
namespace {

/// Lengths around one, two and three blocks.
std::vector<std::size_t> LengthsAroundBlockBorders() {
  std::vector<std::size_t> lengths;
  for (std::size_t blocks = 1; blocks <= 3; ++blocks) {
    for (std::size_t length = blocks * kDiskBlock - 5; length <= blocks * kDiskBlock + 5;
         ++length) {
      lengths.push_back(length);
    }
  }
  return lengths;
}

/// The lines as a scan takes them: many at once where it can be.
std::vector<std::string> LinesTakenTogether(const std::string& bytes, std::size_t chunkBytes) {
  ChunkedSource source(bytes, chunkBytes);
  LineDecoder decoder(source);
  std::vector<std::string> lines;
  for (;;) {
    if (const std::string block(decoder.NextLines()); !block.empty()) {
      EXPECT_EQ(block.back(), '\n');
      for (std::string& line : LinesOf(block)) lines.push_back(std::move(line));
      decoder.SkipLines(block.size());
    } else if (const auto line = decoder.NextLine()) {
      lines.emplace_back(*line);
    } else {
      return lines;
    }
  }
}

TEST(LinesTogether, AreTheLinesOneByOne) {
  std::mt19937_64 random(std::uint64_t{5});
  for (int round = 0; round < 400; ++round) {
    std::string bytes;
    const std::size_t parts = random() % 12;
    for (std::size_t i = 0; i < parts; ++i) {
      bytes.append(random() % 3 == 0 ? random() % 20'000 : random() % 5, 'a');
      bytes.append(std::vector<const char*>{"\n", "\r", "\r\n", "\r\r", "\n\n", ""}[random() % 6]);
    }
    const std::size_t chunkBytes = 1 + random() % (random() % 2 == 0 ? 50 : 30'000);
    ASSERT_EQ(LinesTakenTogether(bytes, chunkBytes), LinesOf(bytes)) << round;
  }
}

TEST(LinesTogether, LastLineIsLikeTheOthersWithoutItsEndToo) {
  ChunkedSource source("one\ntwo", kDiskBlock);
  LineDecoder decoder(source);
  EXPECT_EQ(decoder.NextLines(), "one\n");
  decoder.SkipLines(4);
  EXPECT_EQ(decoder.NextLines(), "two\n");
  decoder.SkipLines(4);
  EXPECT_EQ(decoder.NextLines(), "");
  EXPECT_EQ(decoder.NextLine(), std::nullopt);
}

TEST(BlockBorders, LineLongerThanABlockIsOneLine) {
  for (const std::size_t length :
       {std::size_t{65'537}, std::size_t{200'000}, std::size_t{700'001}}) {
    const std::string longLine(length, 'a');
    EXPECT_EQ(LinesOf(longLine + "\nb"), (std::vector<std::string>{longLine, "b"}));
    EXPECT_EQ(LinesOf("b\n" + longLine), (std::vector<std::string>{"b", longLine}));
  }
}

TEST(BlockBorders, LongLineOneByteAtATimeIsOneLine) {
  const std::string longLine(200'000, 'a');
  EXPECT_EQ(LinesOf(longLine + "\r\nb", 1), (std::vector<std::string>{longLine, "b"}));
}

TEST(BlockBorders, CarriageReturnAndLineFeedStayTogether) {
  for (const std::size_t length : LengthsAroundBlockBorders()) {
    const std::string line(length, 'a');
    ASSERT_EQ(LinesOf(line + "\r\nb"), (std::vector<std::string>{line, "b"})) << length;
    ASSERT_EQ(LinesOf("\xEF\xBB\xBF" + line + "\r\nb"), (std::vector<std::string>{line, "b"}))
        << length;
  }
}

TEST(BlockBorders, CarriageReturnAloneEndsOneLine) {
  for (const std::size_t length : LengthsAroundBlockBorders()) {
    const std::string line(length, 'a');
    ASSERT_EQ(LinesOf(line + "\rb"), (std::vector<std::string>{line, "b"})) << length;
    ASSERT_EQ(LinesOf(line + "\r\rb"), (std::vector<std::string>{line, "", "b"})) << length;
  }
}

TEST(BlockBorders, CarriageReturnAsTheLastByteOfAFileEndsTheLastLine) {
  for (const std::size_t length : LengthsAroundBlockBorders()) {
    const std::string line(length, 'a');
    ASSERT_EQ(LinesOf(line + "\r"), (std::vector<std::string>{line})) << length;
    ASSERT_EQ(LinesOf(line + "\r\n"), (std::vector<std::string>{line})) << length;
  }
}

TEST(BlockBorders, CharactersAreNotTornApart) {
  for (const std::size_t length : LengthsAroundBlockBorders()) {
    const std::string line = std::string(length, 'a') + "é€🙂z";
    ASSERT_EQ(LinesOf(line + "\nb"), (std::vector<std::string>{line, "b"})) << length;
    ASSERT_EQ(TextOf(line + "\nb"), line + "\nb") << length;
  }
}

TEST(BlockBorders, LineIsJudgedAsAWhole) {
  for (const std::size_t length : LengthsAroundBlockBorders()) {
    const std::string start(length, 'a');
    ASSERT_EQ(LinesOf("\xE9" + start + "\xC3\xA9\n\xC3\xA9"),
              (std::vector<std::string>{"é" + start + "Ã©", "é"}))
        << length;
  }
}

TEST(BlockBorders, ManyShortLinesKeepTheirOrder) {
  std::string bytes;
  std::vector<std::string> expected;
  for (int i = 0; i < 60'000; ++i) {
    expected.push_back("line " + std::to_string(i));
    bytes += expected.back() + (i % 3 == 0 ? "\n" : i % 3 == 1 ? "\r" : "\r\n");
  }
  EXPECT_EQ(LinesOf(bytes), expected);
  EXPECT_EQ(LinesOf(bytes, 1), expected);
  EXPECT_EQ(LinesOf(bytes, 1000), expected);
}

TEST(BlockBorders, ManyEmptyLinesAreAllThere) {
  EXPECT_EQ(LinesOf(std::string(200'000, '\n')).size(), 200'000U);
  EXPECT_EQ(LinesOf(std::string(200'000, '\r')).size(), 200'000U);
}

}  // namespace
}  // namespace quillomat
