// The words of a large store are sorted, filtered and summed up on several threads as on one.
#include <cstddef>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "engine/word_filters.h"
#include "engine/word_store.h"

namespace quillomat {
namespace {

/// Of so many letters out of few, so that many words begin alike, and some are the same.
std::string RandomWord(std::mt19937& random) {
  const std::size_t letters = 1 + random() % (random() % 50 == 0 ? 40 : 12);
  std::string word = random() % 3 == 0 ? "beginning" : "";
  for (std::size_t i = 0; i < letters; ++i) word += static_cast<char>('a' + random() % 7);
  if (random() % 9 == 0) word += "\u00E9";
  return word;
}

void FillStore(WordStore& store) {
  constexpr int kWords = 150'000;
  std::mt19937 random(17);  // NOLINT(cert-msc51-cpp): the same words every time
  for (int i = 0; i < kWords; ++i) store.AddWord(RandomWord(random));
}

/// What is asked of a store in the end, on so many threads.
struct Outcome {
  std::vector<std::string> words;
  std::vector<std::int32_t> counts;
  std::vector<bool> included;
  WordTotals totals;
};

Outcome OutcomeOn(std::size_t threads) {
  WordStore store;
  FillStore(store);
  FilterChoices filters;
  filters.ignoreNoVowelOrY = CheckState::kChecked;
  filters.ignoreRepetitions = CheckState::kChecked;
  filters.longWordSize = 20;
  ApplyWordFilters(store, filters, threads);
  Outcome outcome;
  outcome.totals = store.TallyWords(threads);
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); ++index) {
    const WordRec record = store.At(index);
    outcome.words.emplace_back(record.Word);
    outcome.counts.push_back(record.Count);
    outcome.included.push_back(record.Included);
  }
  return outcome;
}

TEST(SortOnThreads, GivesWhatOneThreadGives) {
  const Outcome expected = OutcomeOn(1);
  ASSERT_GT(expected.words.size(), 8 * kSmallestPart / 2);
  for (const std::size_t threads : {2U, 3U, 8U}) {
    const Outcome outcome = OutcomeOn(threads);
    EXPECT_TRUE(outcome.words == expected.words) << threads;
    EXPECT_TRUE(outcome.counts == expected.counts) << threads;
    EXPECT_TRUE(outcome.included == expected.included) << threads;
    EXPECT_EQ(outcome.totals.NumIncludedWords, expected.totals.NumIncludedWords);
    EXPECT_EQ(outcome.totals.NumExcludedWords, expected.totals.NumExcludedWords);
    EXPECT_EQ(outcome.totals.TotalIncludedCount, expected.totals.TotalIncludedCount);
    EXPECT_EQ(outcome.totals.MaxCount, expected.totals.MaxCount);
    EXPECT_EQ(outcome.totals.MaxWordLength, expected.totals.MaxWordLength);
  }
}

TEST(SortOnThreads, WordsFollowEachOtherByTheirKeys) {
  WordStore store;
  FillStore(store);
  store.Sort(3);
  std::int32_t outOfOrder = 0;
  for (std::int32_t index = 2; index <= store.NumDifferentWords(); ++index) {
    if (store.At(index - 1).SortKey >= store.At(index).SortKey) ++outOfOrder;
  }
  EXPECT_EQ(outOfOrder, 0);
}

TEST(SortOnThreads, WordsThatAllBeginAlikeAreSortedToo) {
  WordStore store;
  constexpr int kWords = 60'000;
  for (int i = 0; i < kWords; ++i) {
    std::string word = "numbered";
    for (int rest = i; rest > 0; rest /= 10) word += static_cast<char>('a' + rest % 10);
    store.AddWord(word);
  }
  store.Sort(2);
  ASSERT_EQ(store.NumDifferentWords(), kWords);
  EXPECT_EQ(store.At(1).Word, "numbered");
  EXPECT_EQ(store.At(2).Word, "numberedaaaab");
  EXPECT_EQ(store.At(kWords).Word, "numberedjjjjf");
}

}  // namespace
}  // namespace quillomat
