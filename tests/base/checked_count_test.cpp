// Counters that refuse to wrap.
#include "base/checked_count.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

namespace quillomat {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

template <typename Action>
int ErrorNumberOf(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(CheckedCount, CountsUpToTheGreatestNumber) {
  std::int32_t counter = kMost - 1;
  IncrementChecked(counter);
  EXPECT_EQ(counter, 2'147'483'647);
}

TEST(CheckedCount, OneTooManyIsAnOverflowAndLeavesTheCounter) {
  std::int32_t counter = kMost;
  EXPECT_EQ(ErrorNumberOf([&] { IncrementChecked(counter); }), 6);
  EXPECT_EQ(counter, kMost);
}

TEST(CheckedCount, SumsUpToTheGreatestNumber) {
  std::int32_t counter = 1;
  AddChecked(counter, kMost - 1);
  EXPECT_EQ(counter, kMost);
}

TEST(CheckedCount, SumThatDoesNotFitIsAnOverflowAndLeavesTheCounter) {
  std::int32_t counter = 2;
  EXPECT_EQ(ErrorNumberOf([&] { AddChecked(counter, kMost - 1); }), 6);
  EXPECT_EQ(counter, 2);
}

TEST(CheckedCount, AddingNothingToTheGreatestNumberIsNoOverflow) {
  std::int32_t counter = kMost;
  AddChecked(counter, 0);
  EXPECT_EQ(counter, kMost);
}

TEST(CheckedCount, SixteenBitCounterEndsAt32767) {
  std::int16_t counter = 32'766;
  IncrementChecked(counter);
  EXPECT_EQ(counter, 32'767);
  EXPECT_EQ(ErrorNumberOf([&] { IncrementChecked(counter); }), 6);
  EXPECT_EQ(counter, 32'767);
}

}  // namespace
}  // namespace quillomat
