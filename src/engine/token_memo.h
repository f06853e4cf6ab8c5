// What became of the tokens that a scan has met, so that the next one like it costs one look-up.
//
// Holds the tokens of at most kMostBytes bytes, and at most kMostTokens of them: a text with more
// different tokens makes it start anew from time to time. At most 2 MiB.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace quillomat {

/// What a token is worth.
struct TokenOutcome {
  static constexpr std::uint32_t kNotStored = UINT32_MAX;

  /// The record of the store to be counted, or kNotStored.
  std::uint32_t place = kNotStored;
  /// Whether a word was read.
  bool isWord = false;
};

class TokenMemo {
 public:
  static constexpr std::size_t kMostBytes = 16;
  static constexpr std::size_t kMostTokens = 49'152;

  TokenMemo() : entries_(kFirstEntries) {}

  void Clear() {
    entries_.assign(kFirstEntries, {});
    tokens_ = 0;
  }

  /// A token as the memo looks it up: its bytes, with zeros behind them.
  struct Key {
    std::uint64_t low = 0;
    std::uint64_t high = 0;
    std::uint32_t size = 0;
  };

  /// Of the first `size` bytes at `text`, 1 to kMostBytes; `readable` bytes can be read there.
  [[nodiscard]] static Key KeyOf(const char* text, std::size_t size, std::size_t readable);

  /// Null for a token that was not remembered.
  [[nodiscard]] const TokenOutcome* Find(const Key& key) const {
    const std::size_t mask = entries_.size() - 1;
    for (std::size_t i = HashOf(key) & mask;; i = (i + 1) & mask) {
      const Entry& entry = entries_[i];
      if (entry.low == key.low && entry.high == key.high && entry.size == key.size) {
        return &entry.outcome;
      }
      if (entry.size == 0) return nullptr;
    }
  }

  void Remember(const Key& key, TokenOutcome outcome);

 private:
  static constexpr std::size_t kFirstEntries = 1024;  // a power of two, as every number of entries
  static constexpr std::size_t kMostEntries = 65'536;

  struct Entry {
    std::uint64_t low = 0;
    std::uint64_t high = 0;
    TokenOutcome outcome;
    std::uint32_t size = 0;  // 0 marks a free entry
  };

  static std::size_t HashOf(const Key& key) {
    constexpr std::uint64_t kFirst = 0x9E3779B97F4A7C15;
    constexpr std::uint64_t kSecond = 0xC2B2AE3D27D4EB4F;
    const std::uint64_t mixed = (key.low ^ (key.high * kSecond)) * kFirst;
    return static_cast<std::size_t>(mixed >> 40U ^ mixed >> 17U);
  }

  void Place(const Entry& entry);

  std::vector<Entry> entries_;
  std::size_t tokens_ = 0;
};

inline TokenMemo::Key TokenMemo::KeyOf(const char* text, std::size_t size, std::size_t readable) {
  Key key;
  key.size = static_cast<std::uint32_t>(size);
  char last[kMostBytes] = {};
  const char* bytes = text;
  if (readable < kMostBytes) {
    std::memcpy(last, text, size);
    bytes = last;
  }
  std::memcpy(&key.low, bytes, sizeof key.low);
  std::memcpy(&key.high, bytes + sizeof key.low, sizeof key.high);
  // The first byte is the lowest of the number, so what stands behind the token is at the top.
  constexpr std::uint64_t kAll = ~std::uint64_t{0};
  if (size < 8) key.low &= kAll >> (64 - 8 * size);
  key.high = size <= 8 ? 0 : key.high & kAll >> (128 - 8 * size);
  return key;
}

}  // namespace quillomat
