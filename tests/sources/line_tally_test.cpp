// The lines of a text and its line ends, counted as the bytes come.
#include "sources/line_tally.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "base/byte_source.h"
#include "base/line_decoder.h"

namespace quillomat {
namespace {

using Unit = LineTally::Unit;

LineEndFigures FiguresOf(std::string_view bytes, Unit unit = Unit::kByte) {
  LineTally tally(unit);
  tally.Take(bytes);
  return tally.Figures();
}

TEST(LineTally, EveryKindOfLineEndIsCountedByItself) {
  EXPECT_EQ(FiguresOf("a\r\nb\r\nc\nd\re\n\r\n"),
            (LineEndFigures{.crLf = 3, .lineFeeds = 2, .returns = 1}));
  EXPECT_EQ(FiguresOf("\r\r\n\n\r"), (LineEndFigures{.crLf = 1, .lineFeeds = 1, .returns = 2}));
}

TEST(LineTally, LastLineNeedsNoEnd) {
  EXPECT_EQ(FiguresOf("").Lines(), 0);
  EXPECT_EQ(FiguresOf("a").Lines(), 1);
  EXPECT_EQ(FiguresOf("a\n").Lines(), 1);
  EXPECT_EQ(FiguresOf("a\nb").Lines(), 2);
  EXPECT_EQ(FiguresOf("a\r\n\r").Lines(), 2);
}

TEST(LineTally, MarkAloneIsNoLine) {
  EXPECT_EQ(FiguresOf("\xEF\xBB\xBF").Lines(), 0);
  EXPECT_FALSE(FiguresOf("\xEF\xBB\xBF").ascii);
  EXPECT_EQ(FiguresOf("\xEF\xBB\xBF\n").Lines(), 1);
  EXPECT_EQ(FiguresOf("\xEF\xBB\xBF\na").Lines(), 2);
  EXPECT_EQ(FiguresOf("\xEF\xBB\xBFz").Lines(), 1);
  EXPECT_EQ(FiguresOf("\xEF\xBB").Lines(), 1);
  EXPECT_EQ(FiguresOf("a\xEF\xBB\xBF").Lines(), 1);
  LineTally inParts(Unit::kByte);
  for (const char ch : std::string("\xEF\xBB\xBF")) inParts.Take({&ch, 1});
  EXPECT_EQ(inParts.Figures().Lines(), 0);
}

TEST(LineTally, TellsWhetherAllIsAscii) {
  EXPECT_TRUE(FiguresOf(std::string(1000, 'a') + "\n").ascii);
  EXPECT_FALSE(FiguresOf(std::string(1000, 'a') + "\x80").ascii);
  EXPECT_FALSE(FiguresOf("\xFF" + std::string(1000, 'a')).ascii);
}

TEST(LineTally, LineEndsOfUtf16AreUnitsAndTheMarkIsNoLine) {
  using std::string_literals::operator""s;
  EXPECT_EQ(FiguresOf("\xFF\xFE"s, Unit::kLittleEndian).Lines(), 0);
  EXPECT_EQ(FiguresOf("\xFF\xFE"s + "a\0\r\0\n\0\0\x0A\x0A\x0D\n\0"s, Unit::kLittleEndian),
            (LineEndFigures{.crLf = 1, .lineFeeds = 1, .ascii = false}))
      << "U+0A00 and U+0D0A end no line";
  EXPECT_EQ(FiguresOf("\xFE\xFF\0\r\0b"s, Unit::kBigEndian),
            (LineEndFigures{.returns = 1, .endsOpen = true, .ascii = false}));
}

TEST(LineTally, HowTheBytesComeMakesNoDifferenceAndLinesAreThoseOfTheDecoder) {
  std::mt19937 random(4711);
  for (int round = 0; round < 300; ++round) {
    std::string text(random() % 900, ' ');
    for (char& ch : text) ch = "\r\n\n\rab c"[random() % 8];
    for (const Unit unit : {Unit::kByte, Unit::kLittleEndian, Unit::kBigEndian}) {
      LineTally inParts(unit);
      for (std::size_t i = 0; i < text.size();) {
        const std::size_t bytes = 1 + random() % 300;
        inParts.Take(std::string_view(text).substr(i, bytes));
        i += bytes;
      }
      ASSERT_EQ(inParts.Figures(), FiguresOf(text, unit));
    }
    TextSource source(text);
    LineDecoder lines(source);
    std::int64_t decoded = 0;
    while (lines.NextLine()) ++decoded;
    ASSERT_EQ(FiguresOf(text).Lines(), decoded);
  }
}

}  // namespace
}  // namespace quillomat
