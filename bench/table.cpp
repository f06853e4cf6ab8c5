// What the table of words costs with two million different words: its rows, its order, its filters.
// Wall clock and processor time; the work is done on all cores.
#include <benchmark/benchmark.h>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>

#include "app/table/word_rows.h"
#include "engine/word_store.h"
#include "listing/frequency_ranking.h"
#include "listing/word_table.h"
#include "qt/expression.h"
#include "system/collation.h"

namespace quillomat {
namespace {

constexpr std::int32_t kWords = 2'000'000;

/// Words of some nine letters that look like words: syllables by the digits of a number.
std::string WordOf(std::uint32_t number) {
  constexpr std::string_view kConsonants = "bcdfghklmnprstvz";
  constexpr std::string_view kVowels = "aeiou";
  std::string word;
  number = number * 2'654'435'761U;  // odd: every number gives another word
  for (int i = 0; i < 5; ++i) {
    word += kConsonants[number % kConsonants.size()];
    number /= static_cast<std::uint32_t>(kConsonants.size());
    word += kVowels[number % kVowels.size()];
    number /= static_cast<std::uint32_t>(kVowels.size());
  }
  return word + static_cast<char>('a' + number % 26);
}

/// A count of two million different words.
struct ManyWords {
  ManyWords() {
    for (std::uint32_t i = 0; i < kWords; ++i) store.AddWord(WordOf(i));
    totals = store.TallyWords();
    ranking = RankByFrequency(store);
  }

  [[nodiscard]] WordRows Rows() const {
    return {WordTable({store, ranking, totals}, kWords), collation};
  }

  WordStore store;
  WordTotals totals;
  FrequencyRanking ranking;
  Collation collation;
};

const ManyWords& Words() {
  static const ManyWords words;
  return words;
}

void RowsAreMade(benchmark::State& state) {
  const ManyWords& words = Words();
  for (auto _ : state) benchmark::DoNotOptimize(words.Rows());
}

void WordsAreOrdered(benchmark::State& state) {
  const ManyWords& words = Words();
  for (auto _ : state) {
    state.PauseTiming();
    WordRows rows = words.Rows();
    state.ResumeTiming();
    rows.SetOrder({WordColumn::kWord, false});
  }
}

void WordsAreFiltered(benchmark::State& state, FilterKind kind, const std::string& text) {
  WordRows rows = Words().Rows();
  for (auto _ : state) {
    Matcher expression;
    if (kind == FilterKind::kExpression) expression = std::get<Matcher>(ReadExpression(text));
    rows.SetFilter({kind, text}, std::move(expression));
  }
  state.counters["words"] = static_cast<double>(rows.Size());
}

void Measured(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
}

BENCHMARK(RowsAreMade)->Apply(Measured);
BENCHMARK(WordsAreOrdered)->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, contain, FilterKind::kContains, "ta")->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, begin, FilterKind::kStartsWith, "ta")->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, end, FilterKind::kEndsWith, "ta")->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, pattern, FilterKind::kPattern, "t?*a*")->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, letter, FilterKind::kExpression, "t")->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, doubled, FilterKind::kExpression, "(.)\\1")->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, ends, FilterKind::kExpression, "^(un|in).*(able|ible)$")
    ->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, vowels, FilterKind::kExpression, "[aeiou]{2}.*s$")
    ->Apply(Measured);
BENCHMARK_CAPTURE(WordsAreFiltered, greedy, FilterKind::kExpression, ".*a.*e.*i.*o.*u")
    ->Apply(Measured);

}  // namespace
}  // namespace quillomat

BENCHMARK_MAIN();
