// Files that start with a UTF-16 byte-order mark.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "base/decoded_lines.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum class ByteOrder { kLittle, kBig };

/// The units as bytes, with the mark in front.
std::string Marked(std::u16string_view units, ByteOrder order) {
  std::string bytes;
  const auto append = [&bytes, order](char16_t unit) {
    const auto high = static_cast<char>(unit >> 8U);
    const auto low = static_cast<char>(unit & 0xFFU);
    bytes += order == ByteOrder::kLittle ? low : high;
    bytes += order == ByteOrder::kLittle ? high : low;
  };
  append(0xFEFF);
  for (const char16_t unit : units) append(unit);
  return bytes;
}

class Utf16 : public testing::TestWithParam<ByteOrder> {};

INSTANTIATE_TEST_SUITE_P(ByteOrders, Utf16, testing::Values(ByteOrder::kLittle, ByteOrder::kBig),
                         [](const testing::TestParamInfo<ByteOrder>& order) {
                           return order.param == ByteOrder::kLittle ? "LittleEndian" : "BigEndian";
                         });

TEST_P(Utf16, LinesAreThoseOfTheText) {
  const std::string bytes = Marked(u"café\r\n€\rж\nŌ", GetParam());
  const auto expected = ElementsAre("café", "€", "ж", "Ō");
  EXPECT_THAT(LinesOf(bytes), expected);
  EXPECT_THAT(LinesOf(bytes, 1), expected);
  EXPECT_THAT(LinesOf(bytes, 3), expected);
}

TEST_P(Utf16, BytesOfLineEndsInsideOtherUnitsEndNoLine) {
  EXPECT_THAT(LinesOf(Marked(u"\u0A0D\u0D0A\u0A0A", GetParam())),
              ElementsAre("\u0A0D\u0D0A\u0A0A"));
}

TEST_P(Utf16, SurrogatesTogetherAreOneCharacter) {
  EXPECT_THAT(LinesOf(Marked(u"a🙂\U00010000\U0010FFFFz", GetParam())),
              ElementsAre("a🙂\U00010000\U0010FFFFz"));
  EXPECT_THAT(LinesOf(Marked(u"🙂", GetParam()), 1), ElementsAre("🙂"));
}

TEST_P(Utf16, LoneSurrogatesAreReplaced) {
  const char16_t high = 0xD83D;
  const char16_t low = 0xDE42;
  const std::u16string highAlone = {u'a', high, u'b'};
  const std::u16string lowAlone = {u'a', low, u'b'};
  const std::u16string wrongOrder = {low, high};
  const std::u16string twoHighs = {high, high, low};
  EXPECT_THAT(LinesOf(Marked(highAlone, GetParam())), ElementsAre("a\uFFFDb"));
  EXPECT_THAT(LinesOf(Marked(lowAlone, GetParam())), ElementsAre("a\uFFFDb"));
  EXPECT_THAT(LinesOf(Marked(wrongOrder, GetParam())), ElementsAre("\uFFFD\uFFFD"));
  EXPECT_THAT(LinesOf(Marked(twoHighs, GetParam())), ElementsAre("\uFFFD🙂"));
}

TEST_P(Utf16, OddLastByteIsReplaced) {
  EXPECT_THAT(LinesOf(Marked(u"a", GetParam()) + "x"), ElementsAre("a\uFFFD"));
  EXPECT_THAT(LinesOf(Marked(u"", GetParam()) + "x"), ElementsAre("\uFFFD"));
}

TEST_P(Utf16, FileOfAMarkAloneHasNoLine) {
  EXPECT_THAT(LinesOf(Marked(u"", GetParam())), IsEmpty());
  EXPECT_THAT(LinesOf(Marked(u"", GetParam()), 1), IsEmpty());
}

TEST_P(Utf16, MarkInsideTheTextStays) {
  EXPECT_THAT(LinesOf(Marked(u"\uFEFFa", GetParam())), ElementsAre("\uFEFFa"));
}

TEST_P(Utf16, SurrogatesAcrossBlocksStayTogether) {
  for (std::size_t length = 32'760; length <= 32'775; ++length) {
    const std::u16string start(length, u'a');
    const std::string expected = std::string(length, 'a') + "🙂";
    ASSERT_THAT(LinesOf(Marked(start + u"🙂\r\nb", GetParam())), ElementsAre(expected, "b"));
  }
}

TEST_P(Utf16, TextKeepsItsLineBreaks) {
  EXPECT_EQ(TextOf(Marked(u"é\r\n🙂\r", GetParam())), "é\r\n🙂\r");
}

}  // namespace
}  // namespace quillomat
