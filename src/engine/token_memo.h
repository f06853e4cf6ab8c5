// What became of the tokens that a scan has met, so that the next one like it costs one look-up.
//
// Holds the tokens of at most kMostBytes bytes, and at most kMostTokens of them: a text with more
// different tokens makes it start anew from time to time. At most 2 MiB.
#pragma once

#include <array>
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
    std::uint32_t hash = 0;
  };

  /// Of the first `size` bytes at `text`, 1 to kMostBytes; `readable` bytes can be read there.
  [[nodiscard]] static Key KeyOf(const char* text, std::size_t size, std::size_t readable);

  /// Begins to fetch what Find will look at.
  void Prefetch(const Key& key) const {
    __builtin_prefetch(&entries_[key.hash & (entries_.size() - 1)]);
  }

  /// Null for a token that was not remembered.
  [[nodiscard]] const TokenOutcome* Find(const Key& key) const {
    const std::size_t mask = entries_.size() - 1;
    for (std::size_t i = key.hash & mask;; i = (i + 1) & mask) {
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
    std::uint8_t size = 0;  // 0 marks a free entry
  };

  /// Masks of the bytes that belong to a token in the upper half of its key and, 8 places further
  /// on, in the lower. The first byte is the lowest of a number.
  static constexpr std::array<std::uint64_t, kMostBytes + 9> kOwnBytes = [] {
    std::array<std::uint64_t, kMostBytes + 9> masks{};
    for (std::size_t place = 9; place < masks.size(); ++place) {
      masks[place] = place >= 16 ? ~std::uint64_t{0} : ~std::uint64_t{0} >> (128 - 8 * place);
    }
    return masks;
  }();

  static std::uint32_t HashOf(std::uint64_t low, std::uint64_t high) {
    constexpr std::uint64_t kFirst = 0x9E3779B97F4A7C15;
    constexpr std::uint64_t kSecond = 0xC2B2AE3D27D4EB4F;
    const std::uint64_t mixed = (low ^ (high * kSecond)) * kFirst;
    return static_cast<std::uint32_t>(mixed >> 32U);
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
  key.low &= kOwnBytes[size + 8];
  key.high &= kOwnBytes[size];
  key.hash = HashOf(key.low, key.high);
  return key;
}

}  // namespace quillomat
