#include "base/work_pace.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

using std::chrono::seconds;

TEST(WorkPace, RateAndTimeLeftFollowFromWhatIsDone) {
  EXPECT_DOUBLE_EQ(BytesPerSecond({100, 400}, seconds(2)), 50);
  EXPECT_DOUBLE_EQ(SecondsLeft({100, 400}, seconds(2)).value_or(-1), 6);
  EXPECT_DOUBLE_EQ(SecondsLeft({500, 400}, seconds(2)).value_or(-1), 0) << "it has grown";
}

TEST(WorkPace, NobodyKnowsBeforeAnythingIsDone) {
  EXPECT_DOUBLE_EQ(BytesPerSecond({100, 400}, seconds(0)), 0);
  EXPECT_EQ(SecondsLeft({100, 400}, seconds(0)), std::nullopt);
  EXPECT_EQ(SecondsLeft({0, 400}, seconds(2)), std::nullopt);
  EXPECT_EQ(SecondsLeft({100, 0}, seconds(2)), std::nullopt);
}

TEST(WorkPace, AmountsAndTimesAreShort) {
  EXPECT_EQ(AmountText(999), "999 B");
  EXPECT_EQ(AmountText(1234), "1.2 kB");
  EXPECT_EQ(AmountText(310e6), "310 MB");
  EXPECT_EQ(AmountText(5e15), "5000 TB");
  EXPECT_EQ(AmountText(999.6), "1.0 kB");
  EXPECT_EQ(AmountText(999.7e3), "1.0 MB");
  EXPECT_EQ(AmountText(999.4e3), "999 kB");
  EXPECT_EQ(AmountText(9.97e6), "10 MB");
  EXPECT_EQ(AmountText(9.94e6), "9.9 MB");
  EXPECT_EQ(ClockText(5), "0:05");
  EXPECT_EQ(ClockText(3723), "1:02:03");
}

}  // namespace
}  // namespace quillomat
