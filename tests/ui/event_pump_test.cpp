#include "ui/event_pump.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

#include "support/scripted_desktop.h"
#include "support/stepping_clock.h"

namespace quillomat {
namespace {

using namespace std::chrono_literals;
using std::chrono::nanoseconds;

/// A desktop that remembers when it was pumped, by a clock that the test moves.
class EventPumpTest : public ::testing::Test {
 protected:
  EventPump::TimePoint Now() {
    ++looks_;
    return now_;
  }

  /// Yields every `step`, `calls` times, and notes the longest time between two pumps.
  void Work(EventPump& pump, int calls, nanoseconds step) {
    for (int i = 0; i < calls; ++i) {
      now_ += step;
      const int before = desktop_.Pumps();
      pump.Yield();
      if (desktop_.Pumps() > before) NotePump();
    }
  }

  void NotePump() {
    if (lastPump_) longestGap_ = std::max(longestGap_, now_ - *lastPump_);
    lastPump_ = now_;
  }

  ScriptedDesktop desktop_;
  EventPump::TimePoint now_{};
  int looks_ = 0;
  std::optional<EventPump::TimePoint> lastPump_;
  nanoseconds longestGap_{};
  EventPump pump_{desktop_, [this] { return Now(); }};
};

TEST_F(EventPumpTest, QuickCallsPumpEvery15Milliseconds) {
  Work(pump_, 100'000'000, 10ns);  // one second at 100 MHz
  EXPECT_GE(desktop_.Pumps(), 60);
  EXPECT_LE(desktop_.Pumps(), 66);
  EXPECT_LE(longestGap_, 20ms);
  EXPECT_EQ(desktop_.Repaints(), desktop_.Pumps());
}

TEST_F(EventPumpTest, QuickCallsSeldomLookAtTheClock) {
  Work(pump_, 1'000'000, 10ns);
  EXPECT_LT(looks_, 1'000'000 / 120);
}

TEST_F(EventPumpTest, NeverLaterThan20MillisecondsAt100Kilohertz) {
  Work(pump_, 300'000, 10us);
  EXPECT_LE(longestGap_, 20ms);
  EXPECT_GE(longestGap_, 15ms);
}

TEST_F(EventPumpTest, NeverEarlierThanTheInterval) {
  Work(pump_, 14, 1ms);
  EXPECT_EQ(desktop_.Pumps(), 0);
  Work(pump_, 1, 1ms);
  EXPECT_EQ(desktop_.Pumps(), 1);
}

TEST_F(EventPumpTest, OneCallPerMillisecondPumpsInTime) {
  Work(pump_, 1000, 1ms);
  EXPECT_LE(longestGap_, 17ms);
  EXPECT_GE(desktop_.Pumps(), 60);
}

TEST_F(EventPumpTest, CallsSlowerThanTheIntervalPumpEachTime) {
  Work(pump_, 100, 30ms);
  EXPECT_EQ(desktop_.Pumps(), 100);
}

TEST_F(EventPumpTest, GetsUsedToCallsThatBecomeSlow) {
  Work(pump_, 1'000'000, 10ns);
  Work(pump_, EventPump::kMostCallsPerLook, 1ms);  // the count that was running
  const int before = desktop_.Pumps();
  longestGap_ = {};
  lastPump_.reset();
  Work(pump_, 1000, 1ms);
  EXPECT_GE(desktop_.Pumps() - before, 60);
  EXPECT_LE(longestGap_, 17ms);
}

TEST_F(EventPumpTest, GetsUsedToCallsThatBecomeQuick) {
  Work(pump_, 100, 30ms);
  looks_ = 0;
  Work(pump_, 1'000'000, 10ns);
  EXPECT_LT(looks_, 1'000'000 / 100);
}

TEST_F(EventPumpTest, YieldNowPumpsAtOnceAndStartsTheIntervalAnew) {
  Work(pump_, 10, 1ms);
  pump_.YieldNow();
  EXPECT_EQ(desktop_.Pumps(), 1);
  EXPECT_EQ(desktop_.Repaints(), 1);
  Work(pump_, 14, 1ms);
  EXPECT_EQ(desktop_.Pumps(), 1);
  Work(pump_, 2, 1ms);
  EXPECT_EQ(desktop_.Pumps(), 2);
}

TEST_F(EventPumpTest, TimeSpentInEventsIsNotTheWorks) {
  desktop_.AtPump(1, [this] { now_ += 10s; });  // a message box that stands for a while
  Work(pump_, 15, 1ms);
  EXPECT_EQ(desktop_.Pumps(), 1);
  Work(pump_, 14, 1ms);
  EXPECT_EQ(desktop_.Pumps(), 1);
  Work(pump_, 1, 1ms);
  EXPECT_EQ(desktop_.Pumps(), 2);
}

TEST_F(EventPumpTest, HandlerMayYieldItself) {
  desktop_.AtPump(1, [this] { Work(pump_, 100, 1ms); });
  Work(pump_, 15, 1ms);
  EXPECT_GE(desktop_.Pumps(), 6);
  Work(pump_, 16, 1ms);
  EXPECT_GE(desktop_.Pumps(), 7);
}

TEST_F(EventPumpTest, WhatAHandlerThrowsComesThrough) {
  desktop_.AtPump(1, [] { throw std::runtime_error("stop"); });
  EXPECT_THROW(Work(pump_, 100, 1ms), std::runtime_error);
  Work(pump_, 100, 1ms);
  EXPECT_GE(desktop_.Pumps(), 6);
}

TEST(SteppingClockTest, MakesEveryYieldPump) {
  ScriptedDesktop desktop;
  EventPump pump(desktop, SteppingClock());
  for (int i = 1; i <= 1000; ++i) {
    pump.Yield();
    ASSERT_EQ(desktop.Pumps(), i);
  }
}

}  // namespace
}  // namespace quillomat
