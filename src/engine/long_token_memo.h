// What became of the tokens that are too long for a TokenMemo: most words of alphabets whose
// letters have two bytes or three, and a few of English.
//
// Holds tokens of at most kMostBytes bytes, at most kMostTokens of them, and at most some 2 MiB:
// when it is full it starts anew. It takes no memory before the first is remembered. As in a
// TokenMemo, tokens that meet in one place make it crowded.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include "engine/token_memo.h"
#include "engine/word_hash.h"

namespace quillomat {

class LongTokenMemo {
 public:
  static constexpr std::size_t kMostBytes = 63;
  static constexpr std::size_t kMostTokens = 32'768;

  explicit LongTokenMemo(const HashSeed& seed = DrawnHashSeed()) : seed_(seed) {}

  void Clear();
  [[nodiscard]] bool IsCrowded() const { return crowded_; }

  /// A token as the memo looks it up; its bytes stay where they are.
  struct Key {
    const char* text;
    std::size_t size;
    /// With the size in its lowest bits; 0 for a token that is too long.
    std::uint64_t hash;
  };

  /// Of a token of more than TokenMemo::kMostBytes bytes.
  [[nodiscard]] Key KeyOf(const char* text, std::size_t size) const;

  /// Begins to fetch what Find will look at first, and then its letters.
  void Prefetch(const Key& key) const {
    if (!entries_.empty()) __builtin_prefetch(&entries_[key.hash >> shift_]);
  }

  [[nodiscard]] TokenOutcome Find(const Key& key) const;

  /// `key` is that of a token that is not remembered; one that is too long is not remembered
  /// either.
  void Remember(const Key& key, TokenOutcome outcome);

 private:
  static constexpr unsigned kAllHashBits = 64;
  static constexpr std::uint64_t kSizeBits = 63;
  static constexpr std::size_t kFirstEntries = 1024;  // a power of two, as every number of entries
  static constexpr std::size_t kMostEntries = 65'536;
  static constexpr std::size_t kMostLetters = std::size_t{1} << 20U;
  static constexpr std::size_t kFarthest = 256;  // as in a TokenMemo
  /// Tokens of up to so many bytes are read in four parts, which overlap.
  static constexpr std::size_t kFourParts = 32;

  struct Entry {
    std::uint64_t hash = 0;  // 0 marks a free entry
    std::uint32_t letters = 0;
    TokenOutcome outcome = kUnknownToken;
  };
  /// Of a token: every byte of it stands in one of them.
  struct Parts {
    std::uint64_t first;
    std::uint64_t second;
    std::uint64_t third;
    std::uint64_t last;
  };

  /// Of up to kFourParts bytes, and of 8 at least.
  [[nodiscard]] static Parts PartsOf(const char* text, std::size_t size) {
    constexpr std::size_t kPart = sizeof(std::uint64_t);
    const std::size_t last = size - kPart;
    return {LoadNumber<std::uint64_t>(text),
            LoadNumber<std::uint64_t>(text + std::min(kPart, last)),
            LoadNumber<std::uint64_t>(text + (std::max(last, kPart) - kPart)),
            LoadNumber<std::uint64_t>(text + last)};
  }
  [[nodiscard]] static bool AreEqual(const char* left, const char* right, std::size_t size);
  void ForgetAll();
  void Place(const Entry& entry);
  void Resize(std::size_t entries);

  HashSeed seed_;
  bool crowded_ = false;
  std::vector<Entry> entries_;
  unsigned shift_ = 0;
  std::size_t tokens_ = 0;
  /// Those of all tokens, one behind the other.
  std::vector<char> letters_;
};

inline LongTokenMemo::Key LongTokenMemo::KeyOf(const char* text, std::size_t size) const {
  if (size > kMostBytes) return {text, size, 0};
  std::uint64_t hash = 0;
  if (size <= kFourParts) {
    const Parts parts = PartsOf(text, size);
    const std::uint64_t state =
        FoldedProduct(parts.first ^ seed_.first ^ SpreadLength(size), parts.second ^ seed_.second);
    hash = Stirred(FoldedProduct(parts.third ^ state, parts.last ^ seed_.second));
  } else {
    hash = LongHashOfWord({text, size}, seed_);
  }
  return {text, size, (hash & ~kSizeBits) | size};
}

inline bool LongTokenMemo::AreEqual(const char* left, const char* right, std::size_t size) {
  if (size > kFourParts) return std::memcmp(left, right, size) == 0;
  const Parts one = PartsOf(left, size);
  const Parts other = PartsOf(right, size);
  return ((one.first ^ other.first) | (one.second ^ other.second) | (one.third ^ other.third) |
          (one.last ^ other.last)) == 0;
}

inline TokenOutcome LongTokenMemo::Find(const Key& key) const {
  if (entries_.empty() || key.hash == 0) return kUnknownToken;
  const std::size_t mask = entries_.size() - 1;
  for (std::size_t i = key.hash >> shift_;; i = (i + 1) & mask) {
    const Entry& entry = entries_[i];
    if (entry.hash == key.hash && AreEqual(letters_.data() + entry.letters, key.text, key.size)) {
      return entry.outcome;
    }
    if (entry.hash == 0) return kUnknownToken;
  }
}

}  // namespace quillomat
