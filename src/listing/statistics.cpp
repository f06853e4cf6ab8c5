#include "listing/statistics.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <utility>

#include "base/text_helpers.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

/// How many there are of each length.
class Lengths {
 public:
  void Add(std::size_t length, std::int64_t times) {
    if (length >= numbers_.size()) numbers_.resize(length + 1);
    numbers_[length] += times;
    number_ += times;
    sum_ += static_cast<std::int64_t>(length) * times;
  }

  [[nodiscard]] std::optional<LengthFigures> Figures() const {
    if (number_ == 0) return std::nullopt;
    const auto lower = static_cast<double>(LengthAt((number_ - 1) / 2));
    const auto upper = static_cast<double>(LengthAt(number_ / 2));
    return LengthFigures{static_cast<double>(sum_) / static_cast<double>(number_),
                         (lower + upper) / 2};
  }

 private:
  /// Of the item at that place, from 0, by length.
  [[nodiscard]] std::size_t LengthAt(std::int64_t place) const {
    std::size_t length = 0;
    for (std::int64_t passed = numbers_[0]; passed <= place; passed += numbers_[length]) ++length;
    return length;
  }

  std::vector<std::int64_t> numbers_;
  std::int64_t number_ = 0;
  std::int64_t sum_ = 0;
};

/// Keeps the longest of the words that it is shown in alphabetical order.
class LongestWords {
 public:
  void Show(std::string_view word, std::size_t length) {
    const bool full = kept_.size() == Statistics::kLongestWords;
    if (full && length <= kept_.back().first) return;
    if (full) kept_.pop_back();
    const auto longer = [](std::size_t a, const Kept& b) { return a > b.first; };
    kept_.insert(std::upper_bound(kept_.begin(), kept_.end(), length, longer), {length, word});
  }

  [[nodiscard]] std::vector<std::string> Words() const {
    std::vector<std::string> words;
    for (const Kept& kept : kept_) words.emplace_back(kept.second);
    return words;
  }

 private:
  using Kept = std::pair<std::size_t, std::string_view>;
  std::vector<Kept> kept_;
};

/// `frequencies` are in descending order.
std::optional<LineFigures> RankFrequencyLine(const std::vector<std::int32_t>& frequencies) {
  if (frequencies.size() < 2) return std::nullopt;
  const auto number = static_cast<double>(frequencies.size());
  double sumX = 0;
  double sumY = 0;
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    sumX += std::log(static_cast<double>(i + 1));
    sumY += std::log(frequencies[i]);
  }
  const double meanX = sumX / number;
  const double meanY = sumY / number;
  double squaresX = 0;
  double squaresY = 0;
  double products = 0;
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    const double x = std::log(static_cast<double>(i + 1)) - meanX;
    const double y = std::log(frequencies[i]) - meanY;
    squaresX += x * x;
    squaresY += y * y;
    products += x * y;
  }
  if (frequencies.front() == frequencies.back()) return LineFigures{0, std::nullopt};
  return LineFigures{products / squaresX, products * products / (squaresX * squaresY)};
}

double Rounded(double number) {
  constexpr double kSixDecimals = 1e6;
  return std::round(number * kSixDecimals) / kSixDecimals;
}

}  // namespace

Statistics StatisticsOf(const WordStore& store, std::optional<OrderFigures> order) {
  Statistics statistics;
  statistics.differentWords = store.NumDifferentWords();
  Lengths instances;
  Lengths words;
  LongestWords longest;
  std::vector<std::int32_t> frequencies;
  frequencies.reserve(static_cast<std::size_t>(store.NumDifferentWords()));
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); ++index) {
    const std::string_view word = store.WordOf(index);
    const std::size_t length = CharacterCount(word);
    const std::int32_t frequency = store.CountOf(index);
    frequencies.push_back(frequency);
    statistics.instances += frequency;
    instances.Add(length, frequency);
    words.Add(length, 1);
    longest.Show(word, length);
  }
  statistics.wordsOnce = std::ranges::count(frequencies, 1);
  statistics.wordsTwice = std::ranges::count(frequencies, 2);
  if (statistics.instances > 0) {
    statistics.typeTokenRatio =
        static_cast<double>(statistics.differentWords) / static_cast<double>(statistics.instances);
  }
  statistics.lengthOfInstances = instances.Figures();
  statistics.lengthOfWords = words.Figures();
  statistics.longestWords = longest.Words();
  std::ranges::sort(frequencies, std::greater());
  statistics.rankFrequencyLine = RankFrequencyLine(frequencies);
  statistics.order = std::move(order);
  return statistics;
}

std::vector<Statistic> ListStatistics(const Statistics& statistics) {
  std::vector<Statistic> list;
  const auto add = [&list](StatisticName name, StatisticValue value) {
    list.push_back({name, std::move(value)});
  };
  const auto addRounded = [&add](StatisticName name, std::optional<double> number) {
    if (number) add(name, Rounded(*number));
  };
  add(StatisticName::kInstances, statistics.instances);
  add(StatisticName::kDifferentWords, statistics.differentWords);
  addRounded(StatisticName::kTypeTokenRatio, statistics.typeTokenRatio);
  if (const auto& order = statistics.order) {
    addRounded(StatisticName::kStandardisedRatio, order->standardisedRatio);
    addRounded(StatisticName::kMovingAverageRatio, order->movingAverageRatio);
  }
  add(StatisticName::kWordsOnce, statistics.wordsOnce);
  add(StatisticName::kWordsTwice, statistics.wordsTwice);
  if (const auto& length = statistics.lengthOfInstances) {
    addRounded(StatisticName::kMeanLengthOfInstances, length->mean);
    addRounded(StatisticName::kMedianLengthOfInstances, length->median);
  }
  if (const auto& length = statistics.lengthOfWords) {
    addRounded(StatisticName::kMeanLengthOfWords, length->mean);
    addRounded(StatisticName::kMedianLengthOfWords, length->median);
  }
  if (!statistics.longestWords.empty()) {
    add(StatisticName::kLongestWords, JoinWithBlanks(statistics.longestWords));
  }
  if (const auto& line = statistics.rankFrequencyLine) {
    addRounded(StatisticName::kRankFrequencySlope, line->slope);
    addRounded(StatisticName::kRankFrequencyFit, line->fit);
  }
  if (statistics.order) add(StatisticName::kGrowth, statistics.order->growth);
  return list;
}

std::string NumberText(double number) {
  std::array<char, 64> text{};
  char* const end =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed).ptr;
  return {text.data(), end};
}

std::string StatisticsText(const Statistics& statistics) {
  std::string text;
  const auto line = [&text](std::string_view name, std::string_view value) {
    text.append(name).append("\t").append(value).append("\n");
  };
  for (const Statistic& statistic : ListStatistics(statistics)) {
    const std::string_view name = NameOf(statistic.name);
    if (const auto* whole = std::get_if<std::int64_t>(&statistic.value)) {
      line(name, std::to_string(*whole));
    } else if (const auto* number = std::get_if<double>(&statistic.value)) {
      line(name, NumberText(*number));
    } else if (const auto* words = std::get_if<std::string>(&statistic.value)) {
      line(name, *words);
    } else {
      for (const GrowthPoint& point : std::get<std::vector<GrowthPoint>>(statistic.value)) {
        line("different-words-after-" + std::to_string(point.instances),
             std::to_string(point.differentWords));
      }
    }
  }
  return text;
}

}  // namespace quillomat
