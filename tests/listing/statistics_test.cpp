// Statistics of small counts, worked out by hand.
#include "listing/statistics.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "engine/word_filters.h"
#include "engine/word_store.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

Statistics StatisticsOfWords(const std::vector<std::pair<std::string, int>>& words) {
  WordStore store;
  for (const auto& [word, times] : words) {
    for (int i = 0; i < times; ++i) store.AddWord(word);
  }
  return StatisticsOf(store, std::nullopt);
}

TEST(Statistics, CountInstancesAndWords) {
  const Statistics statistics =
      StatisticsOfWords({{"the", 4}, {"cat", 2}, {"dog", 2}, {"ant", 1}, {"bee", 1}, {"cow", 1}});
  EXPECT_EQ(statistics.instances, 11);
  EXPECT_EQ(statistics.differentWords, 6);
  EXPECT_DOUBLE_EQ(statistics.typeTokenRatio.value(), 6.0 / 11);
  EXPECT_EQ(statistics.wordsOnce, 3);
  EXPECT_EQ(statistics.wordsTwice, 2);
}

TEST(Statistics, LengthsAreThoseOfInstancesAndOfWords) {
  const Statistics statistics = StatisticsOfWords({{"a", 4}, {"is", 2}, {"whale", 1}, {"ship", 1}});
  EXPECT_DOUBLE_EQ(statistics.lengthOfInstances->mean, (4 + 4 + 5 + 4) / 8.0);
  EXPECT_DOUBLE_EQ(statistics.lengthOfInstances->median, 1.5);  // a a a a | is is ship whale
  EXPECT_DOUBLE_EQ(statistics.lengthOfWords->mean, 3.0);
  EXPECT_DOUBLE_EQ(statistics.lengthOfWords->median, 3.0);  // a is | ship whale
}

TEST(Statistics, LengthsAreInCharacters) {
  const Statistics statistics = StatisticsOfWords({{"\u00E9t\u00E9", 1}});
  EXPECT_DOUBLE_EQ(statistics.lengthOfWords->mean, 3.0);
  EXPECT_DOUBLE_EQ(statistics.lengthOfWords->median, 3.0);
}

TEST(Statistics, LongestWordsComeFirstAndEquallyLongOnesByTheAlphabet) {
  std::vector<std::pair<std::string, int>> words = {{"dd", 9}, {"ccc", 1}, {"bbb", 1}, {"aaaa", 1}};
  EXPECT_THAT(StatisticsOfWords(words).longestWords, ElementsAre("aaaa", "bbb", "ccc", "dd"));
  for (char first = 'a'; first <= 'z'; ++first) words.emplace_back(std::string(5, first), 1);
  EXPECT_THAT(StatisticsOfWords(words).longestWords,
              ElementsAre("aaaaa", "bbbbb", "ccccc", "ddddd", "eeeee", "fffff", "ggggg", "hhhhh",
                          "iiiii", "jjjjj"));
}

TEST(Statistics, OfZipfsLawHaveASlopeOfMinusOne) {
  const Statistics statistics =
      StatisticsOfWords({{"a", 60}, {"b", 30}, {"c", 20}, {"d", 15}, {"e", 12}, {"f", 10}});
  EXPECT_NEAR(statistics.rankFrequencyLine->slope, -1.0, 1e-12);
  EXPECT_NEAR(statistics.rankFrequencyLine->fit.value(), 1.0, 1e-12);
}

TEST(Statistics, SlopeIsThatOfTheLeastSquares) {
  // Frequencies 4, 1, 1. By hand, with a = ln 2, b = ln 3, m = (a + b) / 3 and 2 a for ln 4:
  const Statistics statistics = StatisticsOfWords({{"x", 4}, {"y", 1}, {"z", 1}});
  const double a = std::log(2.0);
  const double b = std::log(3.0);
  const double m = (a + b) / 3;
  const double squares = m * m + (a - m) * (a - m) + (b - m) * (b - m);
  const double products = -m * 2 * a;  // the sum of (x - m) y, where only the first y is not 0
  EXPECT_NEAR(statistics.rankFrequencyLine->slope, products / squares, 1e-12);
  const double squaresOfY = 4 * a * a * 2 / 3;
  EXPECT_NEAR(statistics.rankFrequencyLine->fit.value(), products * products / squares / squaresOfY,
              1e-12);
}

TEST(Statistics, EqualFrequenciesHaveASlopeAndNoFit) {
  const Statistics statistics = StatisticsOfWords({{"x", 3}, {"y", 3}});
  EXPECT_DOUBLE_EQ(statistics.rankFrequencyLine->slope, 0.0);
  EXPECT_FALSE(statistics.rankFrequencyLine->fit.has_value());
  EXPECT_FALSE(StatisticsOfWords({{"x", 3}}).rankFrequencyLine.has_value());
}

TEST(Statistics, TakeNoNoticeOfFilters) {
  WordStore store;
  for (const char* word : {"whale", "whale", "a", "xiv"}) store.AddWord(word);
  ApplyWordFilters(store, {.ignoreInfrequentWords = CheckState::kChecked});
  ASSERT_EQ(store.TallyWords().NumIncludedWords, 1);
  EXPECT_EQ(StatisticsOf(store, std::nullopt).differentWords, 3);
}

TEST(Statistics, OfNoWordAreFew) {
  EXPECT_EQ(StatisticsText(StatisticsOfWords({})),
            "instances\t0\ndifferent-words\t0\nwords-once\t0\nwords-twice\t0\n");
}

TEST(Statistics, AreALineEach) {
  WordStore store;
  for (const char* word : {"to", "be", "or", "not", "to", "be"}) store.AddWord(word);
  OrderFigures order;
  order.standardisedRatio = 2.0 / 3;
  order.growth = {{3, 3}, {6, 4}};
  EXPECT_EQ(StatisticsText(StatisticsOf(store, order)),
            "instances\t6\ndifferent-words\t4\ntype-token-ratio\t0.666667\n"
            "standardised-type-token-ratio\t0.666667\nwords-once\t2\nwords-twice\t2\n"
            "mean-length-of-instances\t2.166667\nmedian-length-of-instances\t2\n"
            "mean-length-of-words\t2.25\nmedian-length-of-words\t2\n"
            "longest-words\tnot be or to\nrank-frequency-slope\t-0.572747\n"
            "rank-frequency-fit\t0.740265\n"
            "different-words-after-3\t3\ndifferent-words-after-6\t4\n");
}

TEST(Statistics, WithoutAnOrderHaveNoFiguresOfIt) {
  EXPECT_THAT(StatisticsText(StatisticsOfWords({{"x", 2}})), Not(HasSubstr("after")));
}

TEST(Statistics, OfRandomCountsAreThoseOfTheDefinitions) {
  std::mt19937_64 random(std::uint64_t{5});
  for (int round = 0; round < 200; ++round) {
    std::vector<std::pair<std::string, int>> words;
    std::vector<double> lengths;
    std::vector<double> allLengths;
    for (std::size_t i = 0; i < 1 + random() % 30; ++i) {
      std::string word(1 + random() % 9, 'x');
      word += static_cast<char>('a' + i % 26);
      word += static_cast<char>('a' + i / 26);
      const int times = static_cast<int>(1 + random() % 5);
      lengths.push_back(static_cast<double>(word.size()));
      allLengths.insert(allLengths.end(), static_cast<std::size_t>(times), lengths.back());
      words.emplace_back(std::move(word), times);
    }
    const auto median = [](std::vector<double> numbers) {
      std::ranges::sort(numbers);
      return (numbers[(numbers.size() - 1) / 2] + numbers[numbers.size() / 2]) / 2;
    };
    const Statistics statistics = StatisticsOfWords(words);
    ASSERT_EQ(statistics.lengthOfWords->median, median(lengths)) << round;
    ASSERT_EQ(statistics.lengthOfInstances->median, median(allLengths)) << round;
    std::ranges::stable_sort(words, [](const auto& a, const auto& b) {
      return a.first.size() != b.first.size() ? a.first.size() > b.first.size() : a.first < b.first;
    });
    std::vector<std::string> longest;
    for (std::size_t i = 0; i < std::min<std::size_t>(10, words.size()); ++i) {
      longest.push_back(words[i].first);
    }
    ASSERT_EQ(statistics.longestWords, longest) << round;
  }
}

}  // namespace
}  // namespace quillomat
