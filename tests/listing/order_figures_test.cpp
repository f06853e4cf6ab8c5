// Figures that hang on the order of words: of small texts worked out by hand, and of random ones
// against the definitions taken literally.
#include "listing/order_figures.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <vector>

namespace quillomat {
namespace {

using Places = std::vector<std::uint32_t>;
using Sizes = OrderFigureCounter::Sizes;

OrderFigures FiguresOf(const Places& text, const Sizes& sizes) {
  OrderFigureCounter counter(sizes);
  counter.OnWords(text);
  return counter.Figures();
}

double DifferentIn(const Places& text, std::size_t start, std::size_t words) {
  std::set<std::uint32_t> different;
  for (std::size_t i = start; i < start + words; ++i) different.insert(text[i]);
  return static_cast<double>(different.size());
}

/// The mean of the ratios of stretches of `words` words that begin at 0, `step`, 2 `step` ...
std::optional<double> LiteralMean(const Places& text, std::size_t words, std::size_t step) {
  double sum = 0;
  double stretches = 0;
  for (std::size_t start = 0; start + words <= text.size(); start += step) {
    sum += DifferentIn(text, start, words) / static_cast<double>(words);
    ++stretches;
  }
  return stretches == 0 ? std::nullopt : std::optional(sum / stretches);
}

/// A text of about `different` words, numbered as they come.
Places RandomText(std::mt19937_64& random, std::size_t words, std::uint32_t different) {
  Places text;
  std::vector<std::int64_t> numbers(different, -1);
  std::uint32_t next = 0;
  for (std::size_t i = 0; i < words; ++i) {
    std::int64_t& number = numbers[random() % different];
    if (number < 0) number = next++;
    text.push_back(static_cast<std::uint32_t>(number));
  }
  return text;
}

// to be or not to be that is
const Places kToBe = {0, 1, 2, 3, 0, 1, 4, 5};

TEST(OrderFigures, StandardisedRatioIsTheMeanOfWholeParts) {
  // "to be or" and "not to be"; "that is" is left.
  EXPECT_DOUBLE_EQ(FiguresOf(kToBe, {.part = 3}).standardisedRatio.value(), 1.0);
  // "to be or not to", 4 of 5.
  EXPECT_DOUBLE_EQ(FiguresOf(kToBe, {.part = 5}).standardisedRatio.value(), 0.8);
  // The text is one part, 6 of 8.
  EXPECT_DOUBLE_EQ(FiguresOf(kToBe, {.part = 8}).standardisedRatio.value(), 0.75);
  EXPECT_FALSE(FiguresOf(kToBe, {.part = 9}).standardisedRatio.has_value());
}

TEST(OrderFigures, MovingAverageRatioIsTheMeanOfAllWindows) {
  // to be or not | be or not to | or not to be | not to be that | to be that is: 4 of 4 each.
  EXPECT_DOUBLE_EQ(FiguresOf(kToBe, {.window = 4}).movingAverageRatio.value(), 1.0);
  // 4, 4, 5 and 5 of 5.
  EXPECT_DOUBLE_EQ(FiguresOf(kToBe, {.window = 5}).movingAverageRatio.value(), 18.0 / 20);
  EXPECT_DOUBLE_EQ(FiguresOf(kToBe, {.window = 1}).movingAverageRatio.value(), 1.0);
  EXPECT_DOUBLE_EQ(FiguresOf(kToBe, {.window = 8}).movingAverageRatio.value(), 0.75);
  EXPECT_FALSE(FiguresOf(kToBe, {.window = 9}).movingAverageRatio.has_value());
}

TEST(OrderFigures, AWordThatEntersTheWindowAsItLeavesStays) {
  EXPECT_DOUBLE_EQ(FiguresOf({0, 1, 0, 1, 0}, {.window = 2}).movingAverageRatio.value(), 1.0);
  EXPECT_DOUBLE_EQ(FiguresOf({0, 0, 0, 0}, {.window = 2}).movingAverageRatio.value(), 0.5);
}

TEST(OrderFigures, GrowthHasEveryWordOfAShortText) {
  const std::vector<GrowthPoint> expected = {{1, 1}, {2, 2}, {3, 3}, {4, 4},
                                             {5, 4}, {6, 4}, {7, 5}, {8, 6}};
  EXPECT_EQ(FiguresOf(kToBe, {}).growth, expected);
}

TEST(OrderFigures, GrowthDoublesItsStepAndKeepsTheEnd) {
  const std::vector<GrowthPoint> expected = {{2, 2}, {4, 4}, {6, 4}, {8, 6}};
  EXPECT_EQ(FiguresOf(kToBe, {.mostPoints = 6}).growth, expected);
  const std::vector<GrowthPoint> withEnd = {{4, 4}, {8, 6}};
  EXPECT_EQ(FiguresOf(kToBe, {.mostPoints = 2}).growth, withEnd);
  Places nine = kToBe;
  nine.push_back(6);
  const std::vector<GrowthPoint> odd = {{4, 4}, {8, 6}, {9, 7}};
  EXPECT_EQ(FiguresOf(nine, {.mostPoints = 2}).growth, odd);
}

TEST(OrderFigures, OfNoWordAreNone) {
  const OrderFigures figures = FiguresOf({}, {});
  EXPECT_FALSE(figures.standardisedRatio.has_value());
  EXPECT_FALSE(figures.movingAverageRatio.has_value());
  EXPECT_TRUE(figures.growth.empty());
}

TEST(OrderFigures, OfALongTextHaveAFewHundredPoints) {
  std::mt19937_64 random(std::uint64_t{3});
  for (const std::size_t words : {299U, 300U, 301U, 1000U, 65'536U, 100'001U}) {
    const Places text = RandomText(random, words, 2000);
    const std::vector<GrowthPoint> growth = FiguresOf(text, {}).growth;
    EXPECT_GE(growth.size(), 150U) << words;
    EXPECT_LE(growth.size(), 301U) << words;
    const auto different = static_cast<std::int64_t>(DifferentIn(text, 0, words));
    EXPECT_EQ(growth.back(), (GrowthPoint{static_cast<std::int64_t>(words), different}));
  }
}

TEST(OrderFigures, OfRandomTextsAreThoseOfTheDefinitions) {
  std::mt19937_64 random(std::uint64_t{11});
  for (int round = 0; round < 400; ++round) {
    const Places text =
        RandomText(random, random() % 300, static_cast<std::uint32_t>(1 + random() % 90));
    const Sizes sizes{static_cast<std::uint32_t>(1 + random() % 40),
                      static_cast<std::uint32_t>(1 + random() % 40), 2 + 2 * (random() % 20)};
    OrderFigureCounter counter(sizes);
    for (std::size_t start = 0; start < text.size();) {  // as it may come
      const std::size_t words = std::min<std::size_t>(text.size() - start, random() % 70);
      counter.OnWords(std::span(text).subspan(start, words));
      start += words;
    }
    const OrderFigures figures = counter.Figures();
    const auto parts = LiteralMean(text, sizes.part, sizes.part);
    const auto windows = LiteralMean(text, sizes.window, 1);
    ASSERT_EQ(figures.standardisedRatio.has_value(), parts.has_value()) << round;
    ASSERT_NEAR(figures.standardisedRatio.value_or(0), parts.value_or(0), 1e-12) << round;
    ASSERT_EQ(figures.movingAverageRatio.has_value(), windows.has_value()) << round;
    ASSERT_NEAR(figures.movingAverageRatio.value_or(0), windows.value_or(0), 1e-12) << round;
    for (const GrowthPoint& point : figures.growth) {
      const auto words = static_cast<std::size_t>(point.instances);
      ASSERT_EQ(static_cast<double>(point.differentWords), DifferentIn(text, 0, words)) << round;
    }
  }
}

}  // namespace
}  // namespace quillomat
