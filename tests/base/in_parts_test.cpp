// Work on a long row of things, on several cores.
#include "base/in_parts.h"

#include <gtest/gtest.h>
#include <numeric>
#include <stdexcept>

namespace quillomat {
namespace {

TEST(InParts, PartsFollowEachOtherFromEndToEnd) {
  for (const std::size_t size : {1U, 7U, 100U, 1'001U}) {
    for (const std::size_t most : {1U, 2U, 3U, 8U}) {
      std::size_t end = 0;
      for (const Part& part : PartsOf(size, most, 10)) {
        EXPECT_EQ(part.begin, end);
        EXPECT_LT(part.begin, part.end);
        end = part.end;
      }
      EXPECT_EQ(end, size);
    }
  }
}

TEST(InParts, NothingIsNoPartAndAShortRowIsOne) {
  EXPECT_TRUE(PartsOf(0, 8, 10).empty());
  EXPECT_EQ(PartsOf(19, 8, 10).size(), 1U);
  EXPECT_EQ(PartsOf(20, 8, 10).size(), 2U);
  EXPECT_EQ(PartsOf(1'000, 8, 10).size(), 8U);
  EXPECT_EQ(PartsOf(1'000, 0, 10).size(), 1U);
}

TEST(InParts, EveryThingIsWorkedOnOnce) {
  std::vector<int> worked(1'000);
  ForEachPart(PartsOf(worked.size(), 4, 1), [&](const Part& part, std::size_t number) {
    for (std::size_t i = part.begin; i < part.end; ++i) worked[i] += static_cast<int>(number) + 1;
  });
  EXPECT_EQ(std::accumulate(worked.begin(), worked.end(), 0), 250 * (1 + 2 + 3 + 4));
}

TEST(InParts, WhatOnePartThrowsIsPassedOn) {
  const auto fail = [](const Part& /*part*/, std::size_t number) {
    if (number == 1) throw std::length_error("second");
  };
  EXPECT_THROW(ForEachPart(PartsOf(100, 2, 1), fail), std::length_error);
}

}  // namespace
}  // namespace quillomat
