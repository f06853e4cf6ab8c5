#include "engine/long_token_memo.h"

#include <bit>

namespace quillomat {

void LongTokenMemo::ForgetAll() {
  std::ranges::fill(entries_, Entry());
  letters_.clear();
  tokens_ = 0;
}

void LongTokenMemo::Clear() {
  ForgetAll();
  if (crowded_) seed_ = HashSeedAfter(seed_);
  crowded_ = false;
}

void LongTokenMemo::Remember(const Key& key, TokenOutcome outcome) {
  if (key.hash == 0) return;
  if (tokens_ == kMostTokens || letters_.size() + key.size > kMostLetters) ForgetAll();
  if (entries_.empty()) Resize(kFirstEntries);
  if (tokens_ * 2 >= entries_.size() && entries_.size() < kMostEntries) {
    Resize(entries_.size() * 2);
  }
  const auto letters = static_cast<std::uint32_t>(letters_.size());
  letters_.insert(letters_.end(), key.text, key.text + key.size);
  Place({key.hash, letters, outcome});
  ++tokens_;
}

void LongTokenMemo::Resize(std::size_t entries) {
  std::vector<Entry> old(entries);
  old.swap(entries_);
  shift_ = kAllHashBits - static_cast<unsigned>(std::countr_zero(entries));
  for (const Entry& entry : old) {
    if (entry.hash != 0) Place(entry);
  }
}

void LongTokenMemo::Place(const Entry& entry) {
  const std::size_t mask = entries_.size() - 1;
  const std::size_t home = entry.hash >> shift_;
  std::size_t i = home;
  while (entries_[i].hash != 0) i = (i + 1) & mask;
  entries_[i] = entry;
  if (((i - home) & mask) > kFarthest) crowded_ = true;
}

}  // namespace quillomat
