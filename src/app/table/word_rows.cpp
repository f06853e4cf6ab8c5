#include "app/table/word_rows.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <string>
#include <utility>

#include "base/in_parts.h"

namespace quillomat {
namespace {

/// The first alphabetical place whose word's key is not `isBefore`.
template <typename IsBefore>
std::int32_t FirstPlaceNot(const WordStore& store, IsBefore isBefore) {
  std::int32_t low = 1;
  std::int32_t high = store.NumDifferentWords() + 1;
  while (low < high) {
    const std::int32_t middle = low + (high - low) / 2;
    if (isBefore(store.At(middle).SortKey)) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

}  // namespace

WordRows::WordRows(const WordTable& words, const Collation& collation)
    : words_(words),
      collation_(collation),
      ordered_(words.ByFrequency()),
      shown_(ordered_),
      instances_(words.Words().totals.TotalIncludedCount) {}

void WordRows::SetOrder(RowOrder order) {
  if (order == order_) return;
  order_ = order;
  ordered_ = PlacesInOrder();
  ShowMatching();
}

std::vector<std::int32_t> WordRows::PlacesInOrder() {
  if (order_.column != WordColumn::kWord) return PlacesByNumber(words_, order_);
  if (byWord_.empty()) byWord_ = PlacesByWord(words_, collation_);
  std::vector<std::int32_t> places = byWord_;
  if (order_.descending) std::ranges::reverse(places);
  return places;
}

void WordRows::SetFilter(const RowFilter& filter, Matcher expression) {
  matches_.clear();
  instances_ = words_.Words().totals.TotalIncludedCount;
  if (!filter.text.empty()) {
    Match(WordMatcher(filter, std::move(expression), words_.Words().store.Rule()));
  }
  ShowMatching();
}

void WordRows::Match(const WordMatcher& matcher) {
  const CountedWords& words = words_.Words();
  matches_.assign(words.ranking.rankOf.size(), 0);
  const std::vector<Part> parts = PartsOf(matches_.size());
  std::vector<std::int64_t> instances(parts.size());
  ForEachPart(parts, [&](const Part& part, std::size_t number) {
    // A matcher is for one thread (row_filter.h).
    const WordMatcher ofThread = matcher;  // NOLINT(performance-unnecessary-copy-initialization)
    for (std::size_t index = part.begin; index < part.end; ++index) {
      if (words.ranking.rankOf[index] == 0) continue;
      const WordRec record = words.store.At(static_cast<std::int32_t>(index));
      if (!ofThread.Matches(record)) continue;
      matches_[index] = 1;
      instances[number] += record.Count;
    }
  });
  instances_ = std::accumulate(instances.begin(), instances.end(), std::int64_t{0});
}

void WordRows::ShowMatching() {
  if (matches_.empty()) {
    shown_ = ordered_;
    return;
  }
  shown_.clear();
  std::ranges::copy_if(ordered_, std::back_inserter(shown_), [this](std::int32_t place) {
    return matches_[static_cast<std::size_t>(place)] != 0;
  });
}

std::optional<std::size_t> WordRows::RowOfPlace(std::int32_t place) const {
  const auto found = std::ranges::find(shown_, place);
  if (found == shown_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - shown_.begin());
}

/// The words that begin with it stand one after the other in the store, which is sorted.
std::optional<std::size_t> WordRows::FindBeginning(std::string_view text, std::size_t from) const {
  const WordStore& store = words_.Words().store;
  const std::string beginning = KeyOfTyped(text, store.Rule());
  const std::int32_t first =
      FirstPlaceNot(store, [&](std::string_view key) { return key < beginning; });
  const std::int32_t end = FirstPlaceNot(
      store, [&](std::string_view key) { return key.substr(0, beginning.size()) <= beginning; });
  if (first == end) return std::nullopt;
  const auto fits = [&](std::int32_t place) { return place >= first && place < end; };
  const auto start = shown_.begin() + static_cast<std::ptrdiff_t>(std::min(from, shown_.size()));
  auto row = std::find_if(start, shown_.end(), fits);
  if (row == shown_.end()) row = std::find_if(shown_.begin(), start, fits);
  if (row == shown_.end() || !fits(*row)) return std::nullopt;
  return static_cast<std::size_t>(row - shown_.begin());
}

}  // namespace quillomat
