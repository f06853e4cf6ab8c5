#include "listing/frequency_ranking.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "base/in_parts.h"
#include "engine/unset_items.h"

namespace quillomat {
namespace {

struct Ranked {
  std::int32_t count;
  std::int32_t index;
};

constexpr unsigned kDigitBits = 11;
constexpr std::size_t kDigits = std::size_t{1} << kDigitBits;

using DigitPlaces = std::array<std::size_t, kDigits>;

/// Moves `from` to `to` in descending order of one digit of the counts, equal digits as they stand.
/// A counting sort over digits needs no memory for frequencies that do not occur, however high they
/// are.
void SortByDigit(std::span<const Ranked> from, std::span<Ranked> to, unsigned shift,
                 const std::vector<Part>& parts) {
  const auto digitOf = [shift](const Ranked& ranked) {
    return (static_cast<std::uint32_t>(ranked.count) >> shift) & (kDigits - 1);
  };
  // By part and digit: how many there are, and then where the next one goes.
  std::vector<DigitPlaces> next(parts.size());
  ForEachPart(parts, [&](const Part& part, std::size_t number) {
    DigitPlaces& sizes = next[number];
    for (std::size_t i = part.begin; i < part.end; ++i) ++sizes[digitOf(from[i])];
  });
  std::size_t start = 0;
  for (std::size_t digit = kDigits; digit-- > 0;) {
    for (DigitPlaces& ofPart : next) start += std::exchange(ofPart[digit], start);
  }
  ForEachPart(parts, [&](const Part& part, std::size_t number) {
    DigitPlaces& place = next[number];
    for (std::size_t i = part.begin; i < part.end; ++i) to[place[digitOf(from[i])]++] = from[i];
  });
}

/// In alphabetical order.
std::vector<std::int32_t> IncludedWords(const WordStore& store) {
  std::vector<std::int32_t> included;
  included.reserve(static_cast<std::size_t>(store.NumDifferentWords()));
  for (std::int32_t index = 1; index <= store.NumDifferentWords(); ++index) {
    if (store.IsIncluded(index)) included.push_back(index);
  }
  return included;
}

}  // namespace

FrequencyRanking RankByFrequency(const WordStore& store, std::size_t threads) {
  store.Sort(threads);
  FrequencyRanking ranking;
  ranking.byRank = IncludedWords(store);
  const std::vector<Part> parts = PartsOf(ranking.byRank.size(), threads);
  UnsetItems<Ranked> room(ranking.byRank.size());
  UnsetItems<Ranked> otherRoom(ranking.byRank.size());
  std::span<Ranked> words = room.All();
  std::span<Ranked> scratch = otherRoom.All();
  std::vector<std::int32_t> maxCounts(parts.size());
  ForEachPart(parts, [&](const Part& part, std::size_t number) {
    for (std::size_t i = part.begin; i < part.end; ++i) {
      words[i] = {store.CountOf(ranking.byRank[i]), ranking.byRank[i]};
      maxCounts[number] = std::max(maxCounts[number], words[i].count);
    }
  });
  const std::int32_t maxCount = parts.empty() ? 0 : std::ranges::max(maxCounts);
  for (unsigned shift = 0; shift < 31 && (maxCount >> shift) != 0; shift += kDigitBits) {
    SortByDigit(words, scratch, shift, parts);
    std::swap(words, scratch);
  }

  ranking.rankOf.assign(static_cast<std::size_t>(store.NumDifferentWords()) + 1, 0);
  ForEachPart(parts, [&](const Part& part, std::size_t /*number*/) {
    for (std::size_t i = part.begin; i < part.end; ++i) {
      ranking.byRank[i] = words[i].index;
      ranking.rankOf[static_cast<std::size_t>(words[i].index)] = static_cast<std::int32_t>(i + 1);
    }
  });
  return ranking;
}

}  // namespace quillomat
