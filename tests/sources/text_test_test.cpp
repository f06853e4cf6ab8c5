#include "sources/text_test.h"

#include <gtest/gtest.h>
#include <string>

namespace quillomat {
namespace {

TEST(IsText, NothingIsText) {
  EXPECT_TRUE(IsText("", 3000));
  EXPECT_TRUE(IsText("", 0));
}

TEST(IsText, TabsAndLineBreaksAreTheOnlyControlCharactersInText) {
  for (int code = 0; code < 32; ++code) {
    const std::string text{'a', static_cast<char>(code), 'b'};
    EXPECT_EQ(IsText(text, 3000), code == 9 || code == 10 || code == 13) << code;
  }
}

TEST(IsText, CodesFrom32OnAreText) {
  EXPECT_TRUE(IsText(" ~\x7F\u0081\u00A0\u00FF\u2028\U0001F600", 3000));
}

TEST(IsText, WhatComesBehindTheMaximumIsNotLookedAt) {
  EXPECT_FALSE(IsText("ab\x01", 3));
  EXPECT_TRUE(IsText("ab\x01", 2));
  EXPECT_TRUE(IsText("\x01", 0));
}

TEST(IsText, TheMaximumCountsCharacters) {
  EXPECT_FALSE(IsText("\u00E9\u20AC\x01", 3));
  EXPECT_TRUE(IsText("\u00E9\u20AC\x01", 2));
}

}  // namespace
}  // namespace quillomat
