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
  constexpr double kKilobyte = 1024;
  constexpr double kMegabyte = kKilobyte * kKilobyte;
  EXPECT_EQ(AmountText(1023), "1023 B");
  EXPECT_EQ(AmountText(1234), "1.2 KB");
  EXPECT_EQ(AmountText(310 * kMegabyte), "310 MB");
  EXPECT_EQ(AmountText(5000 * kMegabyte * kMegabyte), "5000 TB");
  EXPECT_EQ(AmountText(1023.6), "1.0 KB");
  EXPECT_EQ(AmountText(1023.7 * kKilobyte), "1.0 MB");
  EXPECT_EQ(AmountText(1023.4 * kKilobyte), "1023 KB");
  EXPECT_EQ(AmountText(9.97 * kMegabyte), "10 MB");
  EXPECT_EQ(AmountText(9.94 * kMegabyte), "9.9 MB");
  EXPECT_EQ(ClockText(5), "0:05");
  EXPECT_EQ(ClockText(3723), "1:02:03");
}

}  // namespace
}  // namespace quillomat
