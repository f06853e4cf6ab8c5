#include "engine/long_token_memo.h"

namespace quillomat {

void LongTokenMemo::Forget() {
  table_.Forget();
  letters_.clear();
}

void LongTokenMemo::Clear() {
  table_.Clear();
  letters_.clear();
}

void LongTokenMemo::Remember(const Key& key, TokenOutcome outcome) {
  if (key.hash == 0) return;
  Entry entry;
  entry.hash = key.hash;
  entry.letters = static_cast<std::uint32_t>(letters_.size());
  letters_.insert(letters_.end(), key.text, key.text + key.size);
  table_.Remember(entry, outcome, [](const Entry& placed) { return placed.hash; });
}

}  // namespace quillomat
