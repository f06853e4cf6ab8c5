#include "engine/token_memo.h"

#include <bit>

namespace quillomat {

static_assert(std::endian::native == std::endian::little,
              "a token's bytes are cut out of numbers, lowest first");

void TokenMemo::Remember(const Key& key, TokenOutcome outcome) {
  if (tokens_ == kMostTokens) Clear();
  if (tokens_ * 4 >= entries_.size() * 3 && entries_.size() < kMostEntries) {
    std::vector<Entry> old(entries_.size() * 2);
    old.swap(entries_);
    for (const Entry& entry : old) {
      if (entry.size != 0) Place(entry);
    }
  }
  Place({key.low, key.high, outcome, static_cast<std::uint8_t>(key.size)});
  ++tokens_;
}

void TokenMemo::Place(const Entry& entry) {
  const std::size_t mask = entries_.size() - 1;
  std::size_t i = HashOf(entry.low, entry.high) & mask;
  while (entries_[i].size != 0) i = (i + 1) & mask;
  entries_[i] = entry;
}

}  // namespace quillomat
