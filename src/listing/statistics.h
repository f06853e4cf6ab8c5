// Statistics of a count. They are of the words that were counted, whether they are listed or not:
// what the filters leave out of the list (rare, short and long words, numerals ...) belongs to
// them; words to ignore do not, nor does anything else where there are count-only words. An
// instance is an occurrence of a word.
//
//   type-token ratio: different words to instances (M. C. Templin, "Certain Language Skills in
//     Children", 1957).
//   words that occur once and twice: hapax and dis legomena (R. H. Baayen, "Word Frequency
//     Distributions", 2001, chapter 1).
//   lengths: in characters, of instances (a frequent word counts often) and of words (each counts
//     once). The median of an even number is the mean of the two in the middle.
//   slope and fit of the rank-frequency line: least squares of the logarithms of the frequencies on
//     those of the ranks 1 to N, of all N different words, and the coefficient of determination
//     (G. K. Zipf, "Human Behavior and the Principle of Least Effort", 1949, chapter 2). A text
//     that follows Zipf's law has a slope of -1.
//
// The figures that hang on the order of words are in order_figures.h.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "engine/word_store.h"
#include "listing/order_figures.h"

namespace quillomat {

struct LengthFigures {
  double mean = 0;
  double median = 0;
};

/// The line y = slope * x + c that comes nearest.
struct LineFigures {
  double slope = 0;
  /// 0 to 1; nothing where all y are the same.
  std::optional<double> fit;
};

struct Statistics {
  static constexpr std::size_t kLongestWords = 10;

  std::int64_t instances = 0;
  std::int64_t differentWords = 0;
  std::int64_t wordsOnce = 0;
  std::int64_t wordsTwice = 0;
  /// Nothing if there is no word.
  std::optional<double> typeTokenRatio;
  std::optional<LengthFigures> lengthOfInstances;
  std::optional<LengthFigures> lengthOfWords;
  /// The longest first, equally long ones in alphabetical order; at most kLongestWords.
  std::vector<std::string> longestWords;
  /// Nothing if there are fewer than two words.
  std::optional<LineFigures> rankFrequencyLine;
  /// Nothing if the order of words was not kept.
  std::optional<OrderFigures> order;
};

/// Works them out; with two million words that takes some tenths of a second.
[[nodiscard]] Statistics StatisticsOf(const WordStore& store, std::optional<OrderFigures> order);

/// The statistics one by one, as they are shown and written.
enum class StatisticName {
  kInstances,
  kDifferentWords,
  kTypeTokenRatio,
  kStandardisedRatio,
  kMovingAverageRatio,
  kWordsOnce,
  kWordsTwice,
  kMeanLengthOfInstances,
  kMedianLengthOfInstances,
  kMeanLengthOfWords,
  kMedianLengthOfWords,
  kLongestWords,
  kRankFrequencySlope,
  kRankFrequencyFit,
  kGrowth,
};

/// In files and on a terminal, in the order of StatisticName.
inline constexpr std::array<std::string_view, 15> kStatisticNames = {
    "instances",
    "different-words",
    "type-token-ratio",
    "standardised-type-token-ratio",
    "moving-average-type-token-ratio",
    "words-once",
    "words-twice",
    "mean-length-of-instances",
    "median-length-of-instances",
    "mean-length-of-words",
    "median-length-of-words",
    "longest-words",
    "rank-frequency-slope",
    "rank-frequency-fit",
    "growth"};

[[nodiscard]] constexpr std::string_view NameOf(StatisticName name) {
  return kStatisticNames[static_cast<std::size_t>(name)];
}

/// Numbers that are not whole are rounded to six decimals.
using StatisticValue = std::variant<std::int64_t, double, std::string, std::vector<GrowthPoint>>;

struct Statistic {
  StatisticName name = StatisticName::kInstances;
  StatisticValue value;
};

/// Those that are known, in the order of StatisticName.
[[nodiscard]] std::vector<Statistic> ListStatistics(const Statistics& statistics);

/// With a dot, at most as many decimals as it needs and no exponent, whatever the locale.
[[nodiscard]] std::string NumberText(double number);

/// "NAME<TAB>VALUE" lines with line feeds; numbers have a dot, whatever the locale. A point of the
/// growth is a line of its own, "different-words-after-1000<TAB>412".
[[nodiscard]] std::string StatisticsText(const Statistics& statistics);

}  // namespace quillomat
