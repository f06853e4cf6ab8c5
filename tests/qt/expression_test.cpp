// Regular expressions as the filter of the table takes them.
#include "qt/expression.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <variant>

namespace quillomat {
namespace {

bool Finds(std::string_view expression, std::string_view text) {
  auto read = ReadExpression(expression);
  auto* const matcher = std::get_if<Matcher>(&read);
  if (matcher == nullptr) {
    ADD_FAILURE() << expression << ": " << std::get<ExpressionFault>(read).description;
    return false;
  }
  return (*matcher)(text);
}

TEST(Expression, MatchesAnywhereInAnyCase) {
  EXPECT_TRUE(Finds("at", "cat"));
  EXPECT_TRUE(Finds("^C.T$", "cat"));
  EXPECT_FALSE(Finds("^at", "cat"));
  EXPECT_TRUE(Finds("(.)\\1", "book"));
  EXPECT_FALSE(Finds("(.)\\1", "cat"));
  EXPECT_TRUE(Finds("a*", "")) << "an empty match is one";
}

TEST(Expression, CharactersAreThoseOfUnicode) {
  EXPECT_TRUE(Finds("^m.ller$", "m\u00FCller")) << "one character, two bytes";
  EXPECT_TRUE(Finds("\u00DC", "m\u00FCller"));
  EXPECT_TRUE(Finds("^\\w+$", "\u043C\u0438\u0440"));
  EXPECT_TRUE(Finds("\u041C", "\u043C\u0438\u0440"));
  EXPECT_FALSE(Finds("^.$", "\u043C\u0438"));
}

TEST(Expression, WhatIsWrongIsSaid) {
  const auto read = ReadExpression("(a");
  ASSERT_TRUE(std::holds_alternative<ExpressionFault>(read));
  EXPECT_NE(std::get<ExpressionFault>(read).description, "");
}

TEST(Expression, LargeOnesMatchOrAreToldOf) {
  std::string large;
  for (int i = 0; i < 10'000; ++i) large += "[\u00E4b]";
  auto read = ReadExpression(large);
  if (auto* matcher = std::get_if<Matcher>(&read)) {
    EXPECT_FALSE((*matcher)("b"));
  }
  if (const auto* fault = std::get_if<ExpressionFault>(&read)) {
    EXPECT_NE(fault->description, "");
  }
}

TEST(Expression, WhatIsNoTextIsNoMatchAndNoHarm) {
  EXPECT_FALSE(Finds("^..$", "a\xFF"));
}

TEST(Expression, LongSearchesEnd) {
  EXPECT_FALSE(Finds("^(a+)+$", std::string(60, 'a') + "b"));
}

TEST(Expression, CopiesLookForThemselves) {
  auto read = ReadExpression("^(c)at$");
  Matcher one = std::get<Matcher>(std::move(read));
  Matcher other = one;
  EXPECT_TRUE(one("cat"));
  one = {};
  EXPECT_TRUE(other("cat"));
  EXPECT_FALSE(other("dog"));
}

}  // namespace
}  // namespace quillomat
