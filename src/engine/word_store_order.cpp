// The alphabetical order of the store.
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <utility>

#include "engine/word_store.h"

namespace quillomat {
namespace {

/// The first 8 bytes of the key as a number whose order is the order of the bytes. A shorter key is
/// filled up with zero bytes, which no key contains.
std::uint64_t LeadingBytes(std::string_view key) {
  std::uint64_t value = 0;
  if (key.size() >= sizeof value) {
    std::memcpy(&value, key.data(), sizeof value);
    if constexpr (std::endian::native == std::endian::little) value = __builtin_bswap64(value);
    return value;
  }
  for (const char byte : key) value = (value << 8U) | static_cast<unsigned char>(byte);
  return key.empty() ? 0 : value << 8U * (sizeof value - key.size());
}

constexpr std::size_t kDigits = 256;
constexpr std::size_t kBytesOfNumber = sizeof(std::uint64_t);

unsigned DigitAt(std::uint64_t number, std::size_t digit) {
  return static_cast<unsigned>(number >> 8U * digit) & 0xFFU;
}

/// Orders the entries by their leading bytes, digit by digit from the last; equal ones stay as they
/// stand. Costs the same for every entry, however many there are.
template <typename Entry>
void SortByLeadingBytes(std::vector<Entry>& entries) {
  std::array<std::array<std::size_t, kDigits>, kBytesOfNumber> sizes{};
  for (const Entry& entry : entries) {
    for (std::size_t digit = 0; digit < kBytesOfNumber; ++digit) {
      ++sizes[digit][DigitAt(entry.leadingBytes, digit)];
    }
  }
  std::vector<Entry> scratch(entries.size());
  for (std::size_t digit = 0; digit < kBytesOfNumber; ++digit) {
    auto& next = sizes[digit];
    const auto isAll = [&](std::size_t size) { return size == entries.size(); };
    if (std::ranges::any_of(next, isAll)) continue;
    std::size_t start = 0;
    for (std::size_t& place : next) start += std::exchange(place, start);
    for (const Entry& entry : entries) scratch[next[DigitAt(entry.leadingBytes, digit)]++] = entry;
    entries.swap(scratch);
  }
}

/// How many steps ahead memory is fetched while words are moved.
constexpr std::size_t kFetchedAhead = 16;

}  // namespace

void WordStore::SortRecords() const {
  BringCounts();
  ++generation_;
  slots_ = {};
  ArrangeWords(SortedEntries());
  sorted_ = true;
}

std::vector<WordStore::SortEntry> WordStore::SortedEntries() const {
  std::vector<SortEntry> entries;
  entries.reserve(letters_.Size());
  for (std::uint32_t place = 0; place < letters_.Size(); ++place) {
    entries.push_back({LeadingBytes(letters_[place].Key()), place});
  }
  SortByLeadingBytes(entries);
  const auto keyLess = [this](const SortEntry& left, const SortEntry& right) {
    return letters_[left.place].Key() < letters_[right.place].Key();
  };
  for (auto first = entries.begin(); first != entries.end();) {
    auto last = first + 1;
    while (last != entries.end() && last->leadingBytes == first->leadingBytes) ++last;
    if (last - first > 1) std::sort(first, last, keyLess);
    first = last;
  }
  return entries;
}

/// Puts the words themselves into their order: whoever goes through them then goes through the
/// memory from end to end.
void WordStore::ArrangeWords(std::span<const SortEntry> order) const {
  ChunkedVector<WordLetters> letters;
  std::vector<std::int32_t> counts;
  std::vector<char> included;
  std::vector<FileTally> tallies;
  counts.reserve(order.size());
  included.reserve(order.size());
  tallies.reserve(tallies_.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i + kFetchedAhead < order.size()) {
      const std::uint32_t ahead = order[i + kFetchedAhead].place;
      __builtin_prefetch(&letters_[ahead]);
      __builtin_prefetch(&counts_[ahead]);
      __builtin_prefetch(&included_[ahead]);
    }
    const std::uint32_t place = order[i].place;
    letters.PushBack(letters_[place]);
    counts.push_back(counts_[place]);
    included.push_back(included_[place]);
  }
  // Nothing can fail any more: what is moved from the store is moved back into it.
  if (!tallies_.empty()) {
    for (const SortEntry& entry : order) tallies.push_back(std::move(tallies_[entry.place]));
  }
  letters_ = std::move(letters);
  counts_ = std::move(counts);
  included_ = std::move(included);
  tallies_ = std::move(tallies);
}

}  // namespace quillomat
