// The parts of a count, each on its own: how many bytes, tokens or words a second. The text is made
// here: words whose frequencies follow Zipf's law, so that every run measures the same.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "base/line_decoder.h"
#include "engine/comment_markers.h"
#include "engine/line_block.h"
#include "engine/parallel/piece_scanner.h"
#include "engine/scan_settings.h"
#include "engine/token_classes.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"
#include "listing/file_list_sink.h"
#include "listing/frequency_ranking.h"
#include "listing/list_walk.h"

namespace quillomat {
namespace {

constexpr std::size_t kTextBytes = std::size_t{4} << 20U;
constexpr std::size_t kBlockBytes = LineDecoder::kMostBytesOfLines;

std::string WordOf(std::size_t number) {
  std::string word;
  for (std::size_t rest = number + 26; rest > 0; rest /= 26) {
    word += static_cast<char>('a' + rest % 26);
  }
  return word;
}

/// Lines of words of which `different` exist.
std::string MakeText(std::size_t different) {
  std::mt19937_64 random(std::uint64_t{1});
  std::uniform_real_distribution<double> chance(0.0, std::log(static_cast<double>(different)));
  std::string text;
  std::size_t lineStart = 0;
  while (text.size() < kTextBytes) {
    text += WordOf(static_cast<std::size_t>(std::exp(chance(random))));
    const bool ends = text.size() - lineStart > 70;
    text += ends ? '\n' : ' ';
    if (ends) lineStart = text.size();
  }
  text.back() = '\n';
  return text;
}

const std::string& EnglishLikeText() {
  static const std::string kText = MakeText(14'000);
  return kText;
}

/// Lines of a block, as a file is read.
std::vector<std::string_view> BlocksOf(std::string_view text) {
  std::vector<std::string_view> blocks;
  while (!text.empty()) {
    blocks.push_back(text.substr(0, text.rfind('\n', kBlockBytes - 1) + 1));
    text.remove_prefix(blocks.back().size());
  }
  return blocks;
}

class NeverStops final : public ScanYield {
 public:
  bool Yield() override { return false; }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return 128; }
};

/// A count with the panel's defaults.
struct Count {
  Count() {
    choices.allowWordsWith[static_cast<std::size_t>(AllowFlag::kHyphen)] = CheckState::kChecked;
    settings.SetAllowWordsFlags(choices);
    settings.BuildExtraWordChars();
  }

  void Scan(std::string_view text) {
    WordScanner scanner(settings, choices, lists, store, yield);
    for (const std::string_view block : BlocksOf(text)) scanner.GetWordsOfLines(block);
  }

  ScanChoices choices;
  ScanSettings settings;
  WordLists lists;
  WordStore store;
  NeverStops yield;
};

void SetBytes(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void SetItems(benchmark::State& state, std::size_t items) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
}

void ClassifyBytes(benchmark::State& state) {
  const TokenClasses classes(false, "-");
  const std::string_view block = BlocksOf(EnglishLikeText())[0];
  std::vector<std::uint64_t> masks(block.size() / kBytesPerMask + 1);
  for (auto _ : state) {
    FindTokenBytes(classes, block, masks);
    benchmark::DoNotOptimize(masks.data());
  }
  SetBytes(state, block.size());
}
BENCHMARK(ClassifyBytes);

void ClassifyBytesPortably(benchmark::State& state) {
  const TokenClasses classes(false, "-");
  const std::string_view block = BlocksOf(EnglishLikeText())[0];
  std::vector<std::uint64_t> masks(block.size() / kBytesPerMask + 1);
  for (auto _ : state) {
    FindTokenBytesPortably(classes, block, masks);
    benchmark::DoNotOptimize(masks.data());
  }
  SetBytes(state, block.size());
}
BENCHMARK(ClassifyBytesPortably);

void CutTokens(benchmark::State& state) {
  const TokenClasses classes(false, "-");
  const CommentMarkers markers;
  ScanSettings settings;
  LineBlock block(classes);
  const std::string_view lines = BlocksOf(EnglishLikeText())[0];
  for (auto _ : state) {
    block.Take(lines, markers, settings, false);
    benchmark::DoNotOptimize(block.TokenCount());
  }
  SetBytes(state, lines.size());
}
BENCHMARK(CutTokens);

/// Everything of a scan but the reading; the argument says how many different words the text has.
void LookUpTokens(benchmark::State& state) {
  const std::string text = MakeText(static_cast<std::size_t>(state.range(0)));
  Count count;
  count.Scan(text);
  WordScanner scanner(count.settings, count.choices, count.lists, count.store, count.yield);
  const std::vector<std::string_view> blocks = BlocksOf(text);
  for (auto _ : state) {
    for (const std::string_view block : blocks) scanner.GetWordsOfLines(block);
    scanner.SetWordsRead(0);
    benchmark::DoNotOptimize(count.store.TakeCountedWords());
  }
  SetBytes(state, text.size());
}
BENCHMARK(LookUpTokens)->Arg(1'000)->Arg(14'000)->Arg(200'000);

/// A text in which every word is new.
void AddNewWords(benchmark::State& state) {
  const auto words = static_cast<std::size_t>(state.range(0));
  std::string text;
  for (std::size_t i = 0; i < words; ++i) text += WordOf(i * 7919) + (i % 12 == 11 ? '\n' : ' ');
  text.back() = '\n';
  for (auto _ : state) {
    Count count;
    count.Scan(text);
    benchmark::DoNotOptimize(count.store.NumDifferentWords());
  }
  SetItems(state, words);
}
BENCHMARK(AddNewWords)->Arg(20'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

/// Words in the store, some of them often.
void FillStore(WordStore& store, std::size_t words) {
  for (std::size_t i = 0; i < words; ++i) {
    const std::uint32_t place = store.AddWord(WordOf(i * 7919 % (words * 4))).value();
    store.CountWordAt(place, static_cast<std::int32_t>(words / (i + 1)));
  }
}

void SortWords(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    WordStore store;
    FillStore(store, static_cast<std::size_t>(state.range(0)));
    state.ResumeTiming();
    benchmark::DoNotOptimize(store.At(1));
  }
  SetItems(state, static_cast<std::size_t>(state.range(0)));
}
BENCHMARK(SortWords)->Arg(20'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void RankWords(benchmark::State& state) {
  WordStore store;
  FillStore(store, static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(RankByFrequency(store));
  SetItems(state, static_cast<std::size_t>(state.range(0)));
}
BENCHMARK(RankWords)->Arg(20'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void ListWords(benchmark::State& state) {
  WordStore store;
  FillStore(store, static_cast<std::size_t>(state.range(0)));
  const FrequencyRanking ranking = RankByFrequency(store);
  const WordTotals totals = store.TallyWords();
  const CountedWords words{store, ranking, totals};
  const LineFormatter formatter(words, {});
  std::size_t bytes = 0;
  for (auto _ : state) {
    FileListSink sink([&bytes](std::string_view block) { bytes += block.size(); },
                      [] { return false; }, formatter.Options(), store.NumDifferentWords());
    ListByFrequency(words, formatter, sink);
    sink.Flush();
  }
  benchmark::DoNotOptimize(bytes);
  SetItems(state, static_cast<std::size_t>(state.range(0)));
}
BENCHMARK(ListWords)->Arg(20'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillomat

BENCHMARK_MAIN();
