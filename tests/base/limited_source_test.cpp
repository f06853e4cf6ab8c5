#include "base/limited_source.h"

#include <array>
#include <gtest/gtest.h>

namespace quillomat {
namespace {

/// The bytes that could be read; what was wrong in the end stands behind them.
std::string ReadAll(ByteSource& source, std::size_t blockBytes) {
  std::string text;
  std::array<char, 100> block{};
  try {
    while (const std::size_t bytes = source.Read(std::span(block).first(blockBytes))) {
      text.append(block.data(), bytes);
    }
  } catch (const InputTooLong& error) {
    text += "|" + error.Description();
  }
  return text;
}

TEST(StartOfSource, EndsAfterSoManyBytes) {
  TextSource text("abcdef");
  StartOfSource start(text, 4);
  EXPECT_EQ(ReadAll(start, 3), "abcd");
  EXPECT_TRUE(start.WasCut());
}

TEST(StartOfSource, GivesAllOfAShorterSource) {
  TextSource text("abc");
  StartOfSource start(text, 4);
  EXPECT_EQ(ReadAll(start, 100), "abc");
  EXPECT_FALSE(start.WasCut());
}

TEST(LimitedSource, TakesLinesUpToTheLimitWhateverTheBlock) {
  for (const std::size_t blockBytes : {1U, 3U, 100U}) {
    TextSource text("abcd\nefgh\r\nijkl");
    LimitedSource limited(text, {.lineBytes = 4});
    EXPECT_EQ(ReadAll(limited, blockBytes), "abcd\nefgh\r\nijkl");
  }
}

TEST(LimitedSource, RefusesALongerLineWhereverItStands) {
  for (const char* lines : {"abcde", "a\nabcde\nb", "abcd\nabcde", "abcde\r"}) {
    TextSource text(lines);
    LimitedSource limited(text, {.lineBytes = 4});
    EXPECT_EQ(ReadAll(limited, 100), "|a line of it is longer than 4 bytes") << lines;
  }
}

TEST(LimitedSource, RefusesMoreBytesThanTheLimit) {
  TextSource text("ab\ncd\n");
  LimitedSource limited(text, {.bytes = 5});
  EXPECT_EQ(ReadAll(limited, 3), "ab\n|it is longer than 5 bytes");
}

}  // namespace
}  // namespace quillomat
