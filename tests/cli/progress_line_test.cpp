#include "cli/progress_line.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

using std::chrono::seconds;

TEST(ProgressLine, TellsShareRateAndTimeLeft) {
  EXPECT_EQ(ProgressText({1'250'000'000, 5'000'000'000}, seconds(5)),
            "[=====>              ]  25%  1.2 GB of 4.7 GB  238 MB/s  0:15 left");
  EXPECT_EQ(ProgressText({100, 100}, seconds(1)),
            "[====================] 100%  100 B of 100 B  100 B/s  0:00 left");
  EXPECT_EQ(ProgressText({1, 3601}, seconds(1)),
            "[>                   ]   0%  1 B of 3.5 KB  1 B/s  1:00:00 left");
}

TEST(ProgressLine, WritesDecimalsAsTheUserDoes) {
  EXPECT_EQ(ProgressText({1'250'000'000, 5'000'000'000}, seconds(2), ","),
            "[=====>              ]  25%  1,2 GB of 4,7 GB  596 MB/s  0:06 left");
  EXPECT_EQ(ProgressText({5'000'000'000, 0}, seconds(2), ","), "4,7 GB  2,3 GB/s  0:02");
}

TEST(ProgressLine, SaysNothingOfWhatItDoesNotKnow) {
  EXPECT_EQ(ProgressText({12'400'000, 0}, seconds(62)), "12 MB  195 KB/s  1:02");
  EXPECT_EQ(ProgressText({0, 100}, seconds(0)),
            "[>                   ]   0%  0 B of 100 B  0 B/s  ");
}

TEST(ProgressLine, AFileThatGrowsIsDoneAtMost) {
  EXPECT_EQ(ProgressText({200, 100}, seconds(1)),
            "[====================] 100%  200 B of 100 B  200 B/s  0:00 left");
}

}  // namespace
}  // namespace quillomat
