#include "listing/word_table.h"

#include <algorithm>

#include "base/utf8.h"

namespace quillomat {
namespace {

/// At most so many frequencies are added up to know a cumulative one.
constexpr std::size_t kRanksPerSum = 16;

}  // namespace

std::optional<WordColumn> WordColumnOfName(std::string_view name) {
  const auto found = std::ranges::find(kWordColumnNames, name);
  if (found == kWordColumnNames.end()) return std::nullopt;
  return static_cast<WordColumn>(found - kWordColumnNames.begin());
}

WordTable::WordTable(const CountedWords& words, std::int32_t wordsRead)
    : words_(words), wordsRead_(wordsRead) {
  const std::vector<std::int32_t>& byRank = words_.ranking.byRank;
  sums_.reserve(byRank.size() / kRanksPerSum + 1);
  std::int64_t sum = 0;
  for (std::size_t i = 0; i < byRank.size(); ++i) {
    if (i % kRanksPerSum == 0) sums_.push_back(sum);
    sum += words_.store.CountOf(byRank[i]);
  }
}

std::vector<std::int32_t> WordTable::Alphabetical() const {
  std::vector<std::int32_t> places;
  places.reserve(Size());
  const std::vector<std::int32_t>& rankOf = words_.ranking.rankOf;
  for (std::size_t index = 1; index < rankOf.size(); ++index) {
    if (rankOf[index] != 0) places.push_back(static_cast<std::int32_t>(index));
  }
  return places;
}

WordRow WordTable::RowOf(std::int32_t index) const {
  WordRow row;
  row.rank = words_.ranking.rankOf[static_cast<std::size_t>(index)];
  row.word = words_.store.WordOf(index);
  SetFrequency(row, words_.store.CountOf(index));
  row.cumulativePercent = 100 * ShareOf(FrequenciesUpTo(row.rank));
  row.length = CharacterCount(row.word);
  if (const FileTally* files = words_.store.FilesOf(index)) row.files = files->NumFiles();
  return row;
}

void WordTable::SetFrequency(WordRow& row, std::int32_t frequency) const {
  row.frequency = frequency;
  row.percent = 100 * ShareOf(frequency);
  row.perMillion = 1'000'000 * ShareOf(frequency);
}

std::int64_t WordTable::FrequenciesUpTo(std::int32_t rank) const {
  const auto ranks = static_cast<std::size_t>(rank);
  const std::size_t whole = (ranks - 1) / kRanksPerSum;
  std::int64_t sum = sums_[whole];
  for (std::size_t i = whole * kRanksPerSum; i < ranks; ++i) {
    sum += words_.store.CountOf(words_.ranking.byRank[i]);
  }
  return sum;
}

double WordTable::ShareOf(std::int64_t frequency) const {
  return wordsRead_ == 0 ? 0 : static_cast<double>(frequency) / static_cast<double>(wordsRead_);
}

}  // namespace quillomat
