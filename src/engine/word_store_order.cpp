// The alphabetical order of the store.
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <utility>

#include "base/in_parts.h"
#include "engine/unset_items.h"
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
/// stand. Costs the same for every entry, however many there are. `scratch` is as long.
void SortByLeadingBytes(std::span<SortEntry> entries, std::span<SortEntry> scratch) {
  std::array<std::array<std::size_t, kDigits>, kBytesOfNumber> sizes{};
  for (const SortEntry& entry : entries) {
    for (std::size_t digit = 0; digit < kBytesOfNumber; ++digit) {
      ++sizes[digit][DigitAt(entry.leadingBytes, digit)];
    }
  }
  std::span<SortEntry> from = entries;
  std::span<SortEntry> to = scratch;
  for (std::size_t digit = 0; digit < kBytesOfNumber; ++digit) {
    auto& next = sizes[digit];
    const auto isAll = [&](std::size_t size) { return size == entries.size(); };
    if (std::ranges::any_of(next, isAll)) continue;
    std::size_t start = 0;
    for (std::size_t& place : next) start += std::exchange(place, start);
    for (const SortEntry& entry : from) to[next[DigitAt(entry.leadingBytes, digit)]++] = entry;
    std::swap(from, to);
  }
  if (from.data() != entries.data()) std::ranges::copy(from, entries.begin());
}

/// The leading bytes at which the words, as far as a sample of them tells, can be parted into
/// `groups` groups of one size.
std::vector<std::uint64_t> GroupStarts(std::span<const SortEntry> entries, std::size_t groups) {
  constexpr std::size_t kSamplesPerGroup = 256;
  const std::size_t samples = std::min(groups * kSamplesPerGroup, entries.size());
  std::vector<std::uint64_t> sample;
  sample.reserve(samples);
  for (std::size_t i = 0; i < samples; ++i) {
    sample.push_back(entries[entries.size() * i / samples].leadingBytes);
  }
  std::ranges::sort(sample);
  std::vector<std::uint64_t> starts;
  for (std::size_t group = 1; group < groups; ++group) {
    starts.push_back(sample[samples * group / groups]);
  }
  return starts;
}

/// Puts the entries into `grouped`, group by group; those of a group stand as they stood. One
/// thread for each of `parts`, and as many groups.
std::vector<Part> PartIntoGroups(std::span<const SortEntry> entries, std::span<SortEntry> grouped,
                                 const std::vector<Part>& parts) {
  const std::vector<std::uint64_t> starts = GroupStarts(entries, parts.size());
  const auto groupOf = [&starts](const SortEntry& entry) {
    return static_cast<std::size_t>(std::ranges::upper_bound(starts, entry.leadingBytes) -
                                    starts.begin());
  };
  // By part and group: how many there are, and then where the next one goes.
  std::vector<std::vector<std::size_t>> next(parts.size(), std::vector<std::size_t>(parts.size()));
  ForEachPart(parts, [&](const Part& part, std::size_t number) {
    std::vector<std::size_t> sizes(parts.size());
    for (std::size_t i = part.begin; i < part.end; ++i) ++sizes[groupOf(entries[i])];
    next[number] = std::move(sizes);
  });
  std::vector<Part> groups;
  std::size_t end = 0;
  for (std::size_t group = 0; group < parts.size(); ++group) {
    const std::size_t begin = end;
    for (auto& ofPart : next) end += std::exchange(ofPart[group], end);
    groups.push_back({begin, end});
  }
  ForEachPart(parts, [&](const Part& part, std::size_t number) {
    std::vector<std::size_t>& place = next[number];
    for (std::size_t i = part.begin; i < part.end; ++i) {
      grouped[place[groupOf(entries[i])]++] = entries[i];
    }
  });
  return groups;
}

/// How many steps ahead memory is fetched while words are moved.
constexpr std::size_t kFetchedAhead = 16;

}  // namespace

void WordStore::SortRecords(std::size_t threads) const {
  BringCounts();
  ++generation_;
  std::pmr::vector<Slot>().swap(slots_);  // gives their memory back, which "= {}" would keep
  included_.resize(letters_.Size(), 1);
  UnsetItems<SortEntry> entries(letters_.Size());
  FillEntries(entries.All(), threads);
  SortEntries(entries.All(), threads);
  ArrangeWords(entries.All(), threads);
  sorted_ = true;
}

void WordStore::FillEntries(std::span<SortEntry> entries, std::size_t threads) const {
  ForEachPart(PartsOf(entries.size(), threads), [&](const Part& part, std::size_t /*number*/) {
    for (std::size_t place = part.begin; place < part.end; ++place) {
      entries[place] = {LeadingBytes(letters_[place].Key()), static_cast<std::uint32_t>(place)};
    }
  });
}

/// With several threads the words are parted by their leading bytes, and each sorts a group.
void WordStore::SortEntries(std::span<SortEntry> entries, std::size_t threads) const {
  UnsetItems<SortEntry> room(entries.size());
  const std::span<SortEntry> scratch = room.All();
  const std::vector<Part> parts = PartsOf(entries.size(), threads);
  const bool isParted = parts.size() > 1;
  const std::vector<Part> groups = isParted ? PartIntoGroups(entries, scratch, parts) : parts;
  ForEachPart(groups, [&](const Part& group, std::size_t /*number*/) {
    const std::size_t size = group.end - group.begin;
    const auto own = entries.subspan(group.begin, size);
    const auto ownScratch = scratch.subspan(group.begin, size);
    if (isParted) std::ranges::copy(ownScratch, own.begin());
    SortByLeadingBytes(own, ownScratch);
    SortByKeys(own);
  });
}

/// Of entries that are in the order of their leading bytes.
void WordStore::SortByKeys(std::span<SortEntry> entries) const {
  const auto keyLess = [this](const SortEntry& left, const SortEntry& right) {
    return letters_[left.place].Key() < letters_[right.place].Key();
  };
  for (auto first = entries.begin(); first != entries.end();) {
    auto last = first + 1;
    while (last != entries.end() && last->leadingBytes == first->leadingBytes) ++last;
    if (last - first > 1) std::sort(first, last, keyLess);
    first = last;
  }
}

/// Puts the words themselves into their order: whoever goes through them then goes through the
/// memory from end to end.
void WordStore::ArrangeWords(std::span<const SortEntry> order, std::size_t threads) const {
  ChunkedVector<WordLetters> letters;
  letters.MakeRoom(order.size());
  std::pmr::vector<std::int32_t> counts(order.size());
  std::pmr::vector<char> included(order.size());
  const auto make = [&](std::size_t i) {
    if (i + kFetchedAhead < order.size()) {
      const std::uint32_t ahead = order[i + kFetchedAhead].place;
      __builtin_prefetch(&letters_[ahead]);
      __builtin_prefetch(&counts_[ahead]);
      __builtin_prefetch(&included_[ahead]);
    }
    const std::uint32_t place = order[i].place;
    counts[i] = counts_[place];
    included[i] = included_[place];
    return letters_[place];
  };
  const std::size_t chunks = letters.ChunksOf(order.size());
  ForEachPart(PartsOf(chunks, threads, 1), [&](const Part& part, std::size_t /*number*/) {
    for (std::size_t chunk = part.begin; chunk < part.end; ++chunk) letters.MakeItems(chunk, make);
  });
  std::vector<FileTally> tallies;
  tallies.reserve(tallies_.size());
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
