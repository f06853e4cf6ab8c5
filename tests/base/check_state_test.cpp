// The three values of a check box.
#include "base/check_state.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(CheckState, IsSetOnlyWhenExactlyChecked) {
  EXPECT_TRUE(IsSet(CheckState::kChecked));
  EXPECT_FALSE(IsSet(CheckState::kUnchecked));
  EXPECT_FALSE(IsSet(CheckState::kGrayed));
}

TEST(CheckState, HasTheNumbersThatStateFilesHold) {
  EXPECT_EQ(static_cast<int>(CheckState::kUnchecked), 0);
  EXPECT_EQ(static_cast<int>(CheckState::kChecked), 1);
  EXPECT_EQ(static_cast<int>(CheckState::kGrayed), 2);
}

}  // namespace
}  // namespace quillomat
