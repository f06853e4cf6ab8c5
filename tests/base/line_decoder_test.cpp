// From bytes to lines: line ends and encodings.
#include "base/line_decoder.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <span>
#include <string>

#include "base/decoded_lines.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LineDecoder, LineFeedEndsALine) {
  EXPECT_THAT(LinesOf("a\nb\n"), ElementsAre("a", "b"));
}

TEST(LineDecoder, CarriageReturnEndsALine) {
  EXPECT_THAT(LinesOf("a\rb\r"), ElementsAre("a", "b"));
}

TEST(LineDecoder, CarriageReturnAndLineFeedTogetherEndOneLine) {
  EXPECT_THAT(LinesOf("a\r\nb\r\n"), ElementsAre("a", "b"));
}

TEST(LineDecoder, LineEndsMayBeMixed) {
  const std::string bytes = "a\rb\nc\r\nd\n\re\r\rf\n\ng\r\r\nh";
  const auto expected = ElementsAre("a", "b", "c", "d", "", "e", "", "f", "", "g", "", "h");
  EXPECT_THAT(LinesOf(bytes), expected);
  EXPECT_THAT(LinesOf(bytes, 1), expected);
  EXPECT_THAT(LinesOf(bytes, 2), expected);
  EXPECT_THAT(LinesOf(bytes, 3), expected);
}

TEST(LineDecoder, LastLineNeedsNoEnd) {
  EXPECT_THAT(LinesOf("a\nb"), ElementsAre("a", "b"));
  EXPECT_THAT(LinesOf("a"), ElementsAre("a"));
}

TEST(LineDecoder, EmptyFileHasNoLine) {
  EXPECT_THAT(LinesOf(""), IsEmpty());
  EXPECT_THAT(LinesOf("", 1), IsEmpty());
}

TEST(LineDecoder, LineEndAloneIsOneEmptyLine) {
  for (const char* bytes : {"\n", "\r", "\r\n"}) {
    EXPECT_THAT(LinesOf(bytes), ElementsAre(""));
    EXPECT_THAT(LinesOf(bytes, 1), ElementsAre(""));
  }
}

TEST(LineDecoder, GivesNothingAfterTheLastLineHoweverOftenAsked) {
  TextSource source("a\r\n");
  LineDecoder decoder(source);
  EXPECT_EQ(decoder.NextLine(), "a");
  EXPECT_EQ(decoder.NextLine(), std::nullopt);
  EXPECT_EQ(decoder.NextLine(), std::nullopt);
}

TEST(LineDecoder, KeepsBlanksTabsAndZeroBytes) {
  using std::string_literals::operator""s;
  EXPECT_THAT(LinesOf("  a\t\n b\0c \f\v"s), ElementsAre("  a\t", " b\0c \f\v"s));
}

TEST(LineDecoder, OtherBreaksOfUnicodeEndNoLine) {
  EXPECT_THAT(LinesOf("a\u2028b\u0085c"), ElementsAre("a\u2028b\u0085c"));
}

TEST(LineDecoder, WellFormedLineIsUtf8) {
  EXPECT_THAT(LinesOf("café €\n🙂"), ElementsAre("café €", "🙂"));
}

TEST(LineDecoder, AnyOtherLineIsWindows1252) {
  EXPECT_THAT(LinesOf("caf\xE9 \x80\x93"), ElementsAre("café €“"));
}

TEST(LineDecoder, EachLineIsJudgedOnItsOwn) {
  const std::string bytes =
      "caf\xC3\xA9\ncaf\xE9\r\nplain\rcaf\xC3\xA9\n\xFC"
      "ber";
  const auto expected = ElementsAre("café", "café", "plain", "café", "über");
  EXPECT_THAT(LinesOf(bytes), expected);
  EXPECT_THAT(LinesOf(bytes, 1), expected);
}

TEST(LineDecoder, OneStrayByteMakesTheWholeLineWindows1252) {
  EXPECT_THAT(LinesOf("caf\xC3\xA9 caf\xE9"), ElementsAre("cafÃ© café"));
}

TEST(LineDecoder, FiveUndefinedBytesBecomeControlCharacters) {
  EXPECT_THAT(LinesOf("\x81\x8D\x8F\x90\x9D"), ElementsAre("\u0081\u008D\u008F\u0090\u009D"));
}

TEST(LineDecoder, OverlongSurrogateAndTruncatedFormsAreWindows1252) {
  EXPECT_THAT(LinesOf("\xC0\xAF"), ElementsAre("À¯"));
  EXPECT_THAT(LinesOf("\xE0\x80\xAF"), ElementsAre("à€¯"));
  EXPECT_THAT(LinesOf("\xED\xA0\x80"), ElementsAre("í\u00A0€"));
  EXPECT_THAT(LinesOf("\xE2\x82"), ElementsAre("â‚"));
  EXPECT_THAT(LinesOf("\xF4\x90\x80\x80"), ElementsAre("ô\u0090€€"));
  EXPECT_THAT(LinesOf("\xC3\n\xA9"), ElementsAre("Ã", "©"));
}

TEST(LineDecoder, Utf8MarkAtTheStartIsDropped) {
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF"
                      "a\nb"),
              ElementsAre("a", "b"));
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF"
                      "a\nb",
                      1),
              ElementsAre("a", "b"));
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF"
                      "caf\xE9"),
              ElementsAre("café"));
}

TEST(LineDecoder, FileOfAMarkAloneHasNoLine) {
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF"), IsEmpty());
}

TEST(LineDecoder, MarkIsDroppedOnceAndAtTheStartOnly) {
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF\xEF\xBB\xBF"
                      "a\n\xEF\xBB\xBF"
                      "b"),
              ElementsAre("\uFEFFa", "\uFEFFb"));
}

TEST(LineDecoder, PartOfAMarkIsText) {
  EXPECT_THAT(LinesOf("\xEF\xBB"), ElementsAre("ï»"));
  EXPECT_THAT(LinesOf("\xEF"), ElementsAre("ï"));
  EXPECT_THAT(LinesOf("\xFF"), ElementsAre("ÿ"));
}

TEST(LineDecoder, PassesOnWhatTheSourceThrows) {
  ChunkedSource source("a\nb", 1);
  source.FailAtTheEnd(RunTimeErrorNumber::kDeviceIo);
  LineDecoder decoder(source);
  EXPECT_EQ(decoder.NextLine(), "a");
  try {
    (void)decoder.NextLine();
    FAIL() << "the error is lost";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 57);
  }
}

TEST(DecodeWindows1252, KnowsAllBytes) {
  std::string low;
  for (int byte = 0; byte < 0x80; ++byte) low += static_cast<char>(byte);
  EXPECT_EQ(DecodeWindows1252(low), low);
  EXPECT_EQ(DecodeWindows1252("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"),
            "€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
  EXPECT_EQ(DecodeWindows1252("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
            "‘’“”•–—˜™š›œžŸ");
  for (int byte = 0xA0; byte <= 0xFF; ++byte) {
    const auto second = static_cast<char>(byte < 0xC0 ? byte : byte - 0x40);
    const std::string expected = {byte < 0xC0 ? '\xC2' : '\xC3', second};
    EXPECT_EQ(DecodeWindows1252(std::string(1, static_cast<char>(byte))), expected);
  }
}

TEST(DecodeLine, ChoosesTheEncodingOfALine) {
  EXPECT_EQ(DecodeLine("café"), "café");
  EXPECT_EQ(DecodeLine("caf\xE9"), "café");
  EXPECT_EQ(DecodeLine(""), "");
}

TEST(DecodeText, KeepsLineBreaksAndJudgesLineByLine) {
  EXPECT_EQ(TextOf("caf\xE9\r\ncaf\xC3\xA9\n\r\xFC"), "café\r\ncafé\n\rü");
  EXPECT_EQ(TextOf("caf\xE9\r\ncaf\xC3\xA9\n\r\xFC", 1), "café\r\ncafé\n\rü");
  EXPECT_EQ(TextOf("plain\r\ntext\n"), "plain\r\ntext\n");
  EXPECT_EQ(TextOf(""), "");
}

TEST(DecodeText, DropsTheMark) {
  EXPECT_EQ(TextOf("\xEF\xBB\xBF"
                   "a\n"),
            "a\n");
}

TEST(UnmarkedSource, GivesTheBytesAsTheyAreWithoutTheMark) {
  TextSource text(
      "\xEF\xBB\xBF"
      "caf\xE9\r\n");
  UnmarkedSource source(text);
  std::array<char, 16> buffer{};
  EXPECT_EQ(source.Read({}), 0U);
  std::string bytes;
  while (const std::size_t size = source.Read(std::span(buffer).first(2))) {
    bytes.append(buffer.data(), size);
  }
  EXPECT_EQ(bytes, "caf\xE9\r\n");
}

}  // namespace
}  // namespace quillomat
