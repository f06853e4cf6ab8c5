#include "app/escaped_text.h"

#include <gtest/gtest.h>
#include <string>

#include "base/utf8.h"

namespace quillomat {
namespace {

TEST(EscapedText, PlainTextStandsForItself) {
  const std::string plain = "C:\\a b\\\u00E9\u20AC = \"x\".txt ";
  EXPECT_EQ(EscapedText(plain), plain);
  EXPECT_EQ(UnescapedText(plain), plain);
}

TEST(EscapedText, ControlCharactersPercentsAndStrayBytesAreEscaped) {
  EXPECT_EQ(EscapedText("a\r\nb%\x7F\t"), "a%0D%0Ab%25%7F%09");
  EXPECT_EQ(EscapedText("caf\xE9.txt\xC3"), "caf%E9.txt%C3");
}

TEST(EscapedText, EveryByteComesBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_TRUE(IsWellFormedUtf8(EscapedText(all)));
  EXPECT_EQ(EscapedText(all).find('\n'), std::string::npos);
  EXPECT_EQ(UnescapedText(EscapedText(all)), all);
}

TEST(EscapedText, PercentWithoutItsDigitsIsMalformed) {
  for (const char* text : {"%", "a%", "%4", "%4g", "%g4", "% 4", "%-1", "%%25"}) {
    EXPECT_EQ(UnescapedText(text), std::nullopt) << text;
  }
  EXPECT_EQ(UnescapedText("%e9%E9"), "\xE9\xE9");
}

}  // namespace
}  // namespace quillomat
