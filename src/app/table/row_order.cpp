#include "app/table/row_order.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <numeric>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "base/in_parts.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

/// A word on its way into its place. Most are told apart by the first bytes of their keys, without
/// a look into the memory where the keys stand.
struct KeyedPlace {
  std::uint64_t leadingBytes;
  std::string_view key;
  std::int32_t place;

  [[nodiscard]] bool operator<(const KeyedPlace& other) const {
    if (leadingBytes != other.leadingBytes) return leadingBytes < other.leadingBytes;
    const int order = key.compare(other.key);
    return order != 0 ? order < 0 : place < other.place;
  }
};

/// As a number whose order is that of the bytes.
std::uint64_t LeadingBytes(std::string_view key) {
  std::uint64_t value = 0;
  std::memcpy(&value, key.data(), std::min(key.size(), sizeof value));
  return std::endian::native == std::endian::little ? __builtin_bswap64(value) : value;
}

/// The words of one part, sorted, and where their keys stand.
struct SortedPart {
  std::string keys;
  std::vector<KeyedPlace> words;
};

void SortPart(const WordTable& words, const Collation& collation,
              std::span<const std::int32_t> places, SortedPart& sorted) {
  constexpr std::size_t kUsualKey = 64;
  sorted.keys.reserve(places.size() * kUsualKey);
  std::vector<std::size_t> ends;
  ends.reserve(places.size());
  for (const std::int32_t place : places) {
    collation.AppendKey(sorted.keys, words.Words().store.WordOf(place));
    ends.push_back(sorted.keys.size());
  }
  sorted.words.reserve(places.size());
  std::size_t begin = 0;
  for (std::size_t i = 0; i < places.size(); ++i) {
    const std::string_view key = std::string_view(sorted.keys).substr(begin, ends[i] - begin);
    sorted.words.push_back({LeadingBytes(key), key, places[i]});
    begin = ends[i];
  }
  std::sort(sorted.words.begin(), sorted.words.end());
}

std::vector<KeyedPlace> Merged(std::vector<SortedPart>& parts) {
  std::vector<KeyedPlace> merged;
  for (SortedPart& part : parts) {
    if (merged.empty()) {
      merged = std::move(part.words);
      continue;
    }
    std::vector<KeyedPlace> both;
    both.reserve(merged.size() + part.words.size());
    std::merge(merged.begin(), merged.end(), part.words.begin(), part.words.end(),
               std::back_inserter(both));
    merged = std::move(both);
  }
  return merged;
}

/// The ranking itself, or its groups of equal frequencies from the last to the first.
std::vector<std::int32_t> PlacesByFrequency(const WordTable& words, bool descending) {
  const std::vector<std::int32_t>& byRank = words.ByFrequency();
  if (descending) return byRank;
  const WordStore& store = words.Words().store;
  std::vector<std::int32_t> places;
  places.reserve(byRank.size());
  for (auto end = byRank.end(); end != byRank.begin();) {
    const std::int32_t frequency = store.CountOf(*(end - 1));
    auto begin = end - 1;
    while (begin != byRank.begin() && store.CountOf(*(begin - 1)) == frequency) --begin;
    places.insert(places.end(), begin, end);
    end = begin;
  }
  return places;
}

/// A counting sort, for numbers that are small: lengths, and how many files there are.
std::vector<std::int32_t> PlacesBySmallNumber(const WordTable& words, RowOrder order) {
  const WordStore& store = words.Words().store;
  const std::vector<std::int32_t> places = words.Alphabetical();
  std::vector<std::size_t> numbers;
  numbers.reserve(places.size());
  for (const std::int32_t place : places) {
    const FileTally* files = store.FilesOf(place);
    numbers.push_back(order.column == WordColumn::kLength ? CharacterCount(store.WordOf(place))
                      : files == nullptr                  ? 0
                                         : static_cast<std::size_t>(files->NumFiles()));
  }
  const std::size_t largest = numbers.empty() ? 0 : *std::ranges::max_element(numbers);
  const auto group = [&](std::size_t number) {
    return order.descending ? largest - number : number;
  };
  std::vector<std::size_t> next(largest + 2);
  for (const std::size_t number : numbers) ++next[group(number) + 1];
  std::partial_sum(next.begin(), next.end(), next.begin());
  std::vector<std::int32_t> ordered(places.size());
  for (std::size_t i = 0; i < places.size(); ++i) ordered[next[group(numbers[i])]++] = places[i];
  return ordered;
}

}  // namespace

std::vector<std::int32_t> PlacesByWord(const WordTable& words, const Collation& collation) {
  std::vector<std::int32_t> alphabetical = words.Alphabetical();
  if (!collation.IsKnown()) return alphabetical;
  const std::vector<Part> parts = PartsOf(alphabetical.size());
  std::vector<SortedPart> sorted(parts.size());
  ForEachPart(parts, [&](const Part& part, std::size_t number) {
    const auto places = std::span(alphabetical).subspan(part.begin, part.end - part.begin);
    SortPart(words, collation, places, sorted[number]);
  });
  std::vector<std::int32_t> places;
  places.reserve(alphabetical.size());
  for (const KeyedPlace& word : Merged(sorted)) places.push_back(word.place);
  return places;
}

std::vector<std::int32_t> PlacesByNumber(const WordTable& words, RowOrder order) {
  switch (order.column) {
    case WordColumn::kFrequency:
    case WordColumn::kPercent:
    case WordColumn::kPerMillion:
      return PlacesByFrequency(words, order.descending);
    case WordColumn::kLength:
    case WordColumn::kFiles:
      return PlacesBySmallNumber(words, order);
    default:
      break;
  }
  std::vector<std::int32_t> places = words.ByFrequency();
  if (order.descending) std::ranges::reverse(places);
  return places;
}

}  // namespace quillomat
