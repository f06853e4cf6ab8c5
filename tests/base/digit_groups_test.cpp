#include "base/digit_groups.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(GroupSignBeside, IsTheOneThatIsWanted) {
  EXPECT_EQ(GroupSignBeside(".", ","), ",");
  EXPECT_EQ(GroupSignBeside(",", "\u00A0"), "\u00A0");
}

TEST(GroupSignBeside, IsAnotherThanThatOfDecimals) {
  EXPECT_EQ(GroupSignBeside(",", ","), ".");
  EXPECT_EQ(GroupSignBeside(".", "."), ",");
}

TEST(GroupSignBeside, IsThereWhereNoneIsWanted) {
  EXPECT_EQ(GroupSignBeside(".", ""), ",");
  EXPECT_EQ(GroupSignBeside(",", ""), ".");
}

}  // namespace
}  // namespace quillomat
