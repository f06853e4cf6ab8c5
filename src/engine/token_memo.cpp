#include "engine/token_memo.h"

#include <algorithm>
#include <bit>

namespace quillomat {

static_assert(std::endian::native == std::endian::little,
              "a token's bytes are cut out of numbers, lowest first");

void TokenMemo::ForgetAll() {
  std::ranges::fill(entries_, Entry());
  tokens_ = 0;
}

void TokenMemo::Clear() {
  ForgetAll();
  if (crowded_) seed_ = HashSeedAfter(seed_);
  crowded_ = false;
}

void TokenMemo::Remember(const Key& key, TokenOutcome outcome) {
  if (tokens_ == kMostTokens) ForgetAll();
  if (tokens_ * 2 >= entries_.size() && entries_.size() < kMostEntries) {
    Resize(entries_.size() * 2);
  }
  Place({key.low, key.high, outcome});
  ++tokens_;
}

void TokenMemo::Resize(std::size_t entries) {
  std::vector<Entry> old(entries);
  old.swap(entries_);
  shift_ = kHashBits - static_cast<unsigned>(std::countr_zero(entries));
  for (const Entry& entry : old) {
    if (entry.low != 0) Place(entry);
  }
}

void TokenMemo::Place(const Entry& entry) {
  const std::size_t mask = entries_.size() - 1;
  const std::size_t home = MixedHash(entry.low, entry.high, seed_) >> shift_;
  std::size_t i = home;
  while (entries_[i].low != 0) i = (i + 1) & mask;
  entries_[i] = entry;
  if (((i - home) & mask) > kFarthest) crowded_ = true;
}

}  // namespace quillomat
