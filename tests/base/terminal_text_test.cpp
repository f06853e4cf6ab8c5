#include "base/terminal_text.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(TerminalText, OrdinaryTextStaysAsItIs) {
  const std::string text =
      "Gr\xC3\xBC\xC3\x9F\x65, \t\xE2\x80\x9Cw\xE2\x80\x9D\r\n\xF0\x9F\x98\x80\n";
  EXPECT_EQ(EscapedForTerminal(text), text);
  EXPECT_EQ(EscapedForTerminal("plain\n"), "plain\n");
  EXPECT_EQ(EscapedForTerminal(""), "");
}

TEST(TerminalText, WhatATerminalWouldActOnIsEscaped) {
  EXPECT_EQ(EscapedForTerminal("\x1B]0;title\x07"), "\\x1B]0;title\\x07");
  EXPECT_EQ(EscapedForTerminal("a\rb\x7F"), "a\\x0Db\\x7F");
  EXPECT_EQ(EscapedForTerminal(std::string("\0", 1)), "\\x00");
  EXPECT_EQ(EscapedForTerminal("\xC2\x9B"
                               "1m"),
            "\\u009B1m");
}

TEST(TerminalText, WhatTurnsTheDirectionOfWritingIsEscaped) {
  EXPECT_EQ(EscapedForTerminal("txt.\xE2\x80\xAE"
                               "exe"),
            "txt.\\u202Eexe");
  EXPECT_EQ(EscapedForTerminal("\xE2\x81\xA6"), "\\u2066");
  EXPECT_EQ(EscapedForTerminal("\u061C"), "\\u061C");
}

TEST(TerminalText, BytesThatAreNoTextAreEscaped) {
  EXPECT_EQ(EscapedForTerminal("caf\xE9 \x9B"
                               "1m"),
            "caf\\xE9 \\x9B1m");
}

}  // namespace
}  // namespace quillomat
