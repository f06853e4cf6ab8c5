#include "listing/frequency_ranking.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory_resource>
#include <span>

namespace quillomat {
namespace {

struct Ranked {
  std::int32_t count;
  std::int32_t index;
};

constexpr unsigned kDigitBits = 11;
constexpr std::size_t kDigits = std::size_t{1} << kDigitBits;

/// Moves `from` to `to` in descending order of one digit of the counts, equal digits as they stand.
/// A counting sort over digits needs no memory for frequencies that do not occur, however high they
/// are.
void SortByDigit(std::span<const Ranked> from, std::span<Ranked> to, unsigned shift) {
  const auto digitOf = [shift](const Ranked& ranked) {
    return (static_cast<std::uint32_t>(ranked.count) >> shift) & (kDigits - 1);
  };
  std::array<std::size_t, kDigits> next{};
  for (const Ranked& ranked : from) ++next[digitOf(ranked)];
  std::size_t start = 0;
  for (std::size_t digit = kDigits; digit-- > 0;) {
    const std::size_t size = next[digit];
    next[digit] = start;
    start += size;
  }
  for (const Ranked& ranked : from) to[next[digitOf(ranked)]++] = ranked;
}

}  // namespace

FrequencyRanking RankByFrequency(const WordStore& store) {
  std::pmr::vector<Ranked> words;
  words.reserve(static_cast<std::size_t>(store.NumDifferentWords()));
  std::int32_t maxCount = 0;
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); ++index) {
    if (!store.IsIncluded(index)) continue;
    words.push_back({store.CountOf(index), index});
    maxCount = std::max(maxCount, words.back().count);
  }
  std::pmr::vector<Ranked> scratch(words.size());
  for (unsigned shift = 0; shift < 31 && (maxCount >> shift) != 0; shift += kDigitBits) {
    SortByDigit(words, scratch, shift);
    words.swap(scratch);
  }

  FrequencyRanking ranking;
  ranking.byRank.reserve(words.size());
  ranking.rankOf.assign(static_cast<std::size_t>(store.NumDifferentWords()) + 1, 0);
  for (const Ranked& ranked : words) {
    ranking.byRank.push_back(ranked.index);
    ranking.rankOf[static_cast<std::size_t>(ranked.index)] =
        static_cast<std::int32_t>(ranking.byRank.size());
  }
  return ranking;
}

}  // namespace quillomat
