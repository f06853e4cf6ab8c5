// What became of the tokens that a scan has met, so that the next one like it costs one look-up.
//
// Holds the tokens of at most kMostBytes bytes, and at most kMostTokens of them: a text with more
// different tokens makes it start anew from time to time. At most 1 MiB: it is to stay in the
// caches nearest to the processor, and four tokens share a line of them.
//
// Tokens that meet in one place of it make it crowded; once cleared, it goes by another seed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include "engine/word_hash.h"

namespace quillomat {

/// What a token is worth: the place in the store of the word to be counted (less than 2^31), or one
/// of the constants below.
using TokenOutcome = std::uint32_t;

/// A word was read that is not stored.
inline constexpr TokenOutcome kWordNotStored = std::uint32_t{1} << 31U;
/// The token is no word.
inline constexpr TokenOutcome kNoWord = kWordNotStored + 1;
/// The token was not remembered.
inline constexpr TokenOutcome kUnknownToken = kWordNotStored + 2;
/// The token is several words: this, and above it a number that tells which.
inline constexpr TokenOutcome kFirstOfSeveral = kWordNotStored + 3;

[[nodiscard]] inline bool IsPlace(TokenOutcome outcome) {
  return outcome < kWordNotStored;
}
[[nodiscard]] inline bool IsSeveral(TokenOutcome outcome) {
  return outcome >= kFirstOfSeveral;
}

class TokenMemo {
 public:
  static constexpr std::size_t kMostBytes = 12;
  static constexpr std::size_t kMostTokens =
      32'768;  // half of the entries, so that few share their place

  explicit TokenMemo(const HashSeed& seed = DrawnHashSeed())
      : seed_(seed), entries_(kFirstEntries) {}

  void Clear();

  /// Whether a token lies so far from its place that the memo should be cleared, for which it is
  /// ready as soon as no key is in use that was made before.
  [[nodiscard]] bool IsCrowded() const { return crowded_; }

  /// A token as the memo looks it up: its bytes, of which none is 0, with zeros behind them.
  struct Key {
    std::uint64_t low;
    std::uint32_t high;
    std::uint32_t hash;
  };

  /// Of the first `size` bytes at `text`, 1 to kMostBytes; `readable` bytes can be read there.
  [[nodiscard]] Key KeyOf(const char* text, std::size_t size, std::size_t readable) const;
  /// The key of no token.
  [[nodiscard]] static Key NoKey() { return {0, UINT32_MAX, 0}; }

  struct Places;
  [[nodiscard]] Places AllPlaces() const;
  /// Begins to fetch what Find will look at.
  void Prefetch(const Key& key) const { __builtin_prefetch(&entries_[key.hash]); }

  [[nodiscard]] TokenOutcome Find(const Key& key) const {
    const std::size_t mask = entries_.size() - 1;
    for (std::size_t i = key.hash;; i = (i + 1) & mask) {
      const Entry& entry = entries_[i];
      if (entry.low == key.low && entry.high == key.high) return entry.outcome;
      if (entry.low == 0) return kUnknownToken;
    }
  }

  /// `key` is that of a token that is not remembered.
  void Remember(const Key& key, TokenOutcome outcome);

 private:
  static constexpr std::size_t kFirstEntries = 1024;  // a power of two, as every number of entries
  static constexpr std::size_t kMostEntries = 65'536;
  /// No half-filled table of chance comes near it.
  static constexpr std::size_t kFarthest = 256;

  struct Entry {
    std::uint64_t low = 0;  // 0 marks a free entry
    std::uint32_t high = 0;
    TokenOutcome outcome = kUnknownToken;
  };

  /// By the size of a token, masks of the bytes that belong to it: in the lower part of its key and
  /// in the upper. The first byte is the lowest of a number.
  struct OwnBytes {
    std::uint64_t low;
    std::uint32_t high;
  };
  static constexpr std::array<OwnBytes, kMostBytes + 1> kOwnBytes = [] {
    std::array<OwnBytes, kMostBytes + 1> masks{};
    for (std::size_t size = 1; size <= kMostBytes; ++size) {
      masks[size].low = size >= 8 ? ~std::uint64_t{0} : ~std::uint64_t{0} >> (64 - 8 * size);
      if (size > 8) masks[size].high = ~std::uint32_t{0} >> (96 - 8 * size);
    }
    return masks;
  }();

  void ForgetAll();
  void Place(const Entry& entry);
  void Resize(std::size_t entries);

  HashSeed seed_;
  bool crowded_ = false;
  std::vector<Entry> entries_;
  unsigned shift_ = kHashBits - 10;  // of kFirstEntries
  std::size_t tokens_ = 0;
};

struct TokenMemo::Places {
  const Entry* entries;
  std::size_t mask;
  unsigned shift;
  HashSeed seed;
  Key KeyOf(const char* text, std::size_t size,
                                       std::size_t readable) const {
  Key key{};
  char last[kMostBytes] = {};
  const char* bytes = text;
  if (readable < kMostBytes) [[unlikely]] {
    std::memcpy(last, text, size);
    bytes = last;
  }
  key.low = LoadNumber<std::uint64_t>(bytes) & kOwnBytes[size].low;
  key.high = LoadNumber<std::uint32_t>(bytes + sizeof key.low) & kOwnBytes[size].high;
  key.hash = static_cast<std::uint32_t>(FoldedProduct(key.low ^ seed.first, key.high ^ seed.second) >> shift);
  return key;
  }
  TokenOutcome Find(const Key& key) const {
    for (std::size_t i = key.hash;; i = (i + 1) & mask) {
      const Entry& entry = entries[i];
      if (entry.low == key.low && entry.high == key.high) return entry.outcome;
      if (entry.low == 0) return kUnknownToken;
    }
  }
};
inline TokenMemo::Places TokenMemo::AllPlaces() const { return {entries_.data(), entries_.size() - 1, shift_ + 32, seed_}; }
inline TokenMemo::Key TokenMemo::KeyOf(const char* text, std::size_t size,
                                       std::size_t readable) const { return AllPlaces().KeyOf(text, size, readable); }

}  // namespace quillomat
