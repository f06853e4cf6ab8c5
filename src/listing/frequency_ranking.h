// Ranks: the included words in descending order of frequency, equal frequencies in alphabetical
// order. Ranks are positions and never shared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/word_store.h"

namespace quillomat {

struct FrequencyRanking {
  /// The alphabetical places of the included words, the most frequent first.
  std::vector<std::int32_t> byRank;
  /// The rank of the word at each alphabetical place (from 1; place 0 is unused); 0 when the word
  /// is not included.
  std::vector<std::int32_t> rankOf;
};

/// Costs time in proportion to the number of words, whatever their frequencies. On so many threads,
/// if there are many words.
[[nodiscard]] FrequencyRanking RankByFrequency(const WordStore& store, std::size_t threads = 1);

}  // namespace quillomat
