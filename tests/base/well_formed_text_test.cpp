#include "base/well_formed_text.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(WellFormedText, IsTheTextItselfWhereThatIsWellFormed) {
  EXPECT_EQ(WellFormedText(""), "");
  EXPECT_EQ(WellFormedText("caf\u00E9 \U0001F600"), "caf\u00E9 \U0001F600");
}

TEST(WellFormedText, ReplacesEachByteThatFitsNowhere) {
  EXPECT_EQ(WellFormedText("caf\xE9"), "caf\uFFFD");
  EXPECT_EQ(WellFormedText("\xFF\xFE/a\xF0\x9F\x98/\u00E9"),
            "\uFFFD\uFFFD/a\uFFFD\uFFFD\uFFFD/\u00E9");
  EXPECT_EQ(WellFormedText("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD") << "half a pair";
}

}  // namespace
}  // namespace quillomat
