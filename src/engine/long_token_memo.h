// What became of the tokens that are too long for a TokenMemo: most words of alphabets whose
// letters have two bytes or three, and a few of English.
//
// Holds tokens of at most kMostBytes bytes, at most kMostTokens of them, and at most some 2 MiB:
// when it is full it starts anew.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include "engine/memo_table.h"
#include "engine/token_outcome.h"
#include "engine/word_hash.h"

namespace quillomat {

class LongTokenMemo {
 public:
  static constexpr std::size_t kMostBytes = 63;

  struct Entry : MemoEntry {
    std::uint32_t letters = 0;
    std::uint64_t hash = 0;  // 0 marks a free entry

    [[nodiscard]] bool IsFree() const { return hash == 0; }
  };
  static constexpr std::size_t kMostTokens = 32'768;

  explicit LongTokenMemo(const HashSeed& seed = DrawnHashSeed()) : table_(seed) {}

  void Forget();
  void Clear();
  [[nodiscard]] bool IsCrowded() const { return table_.IsCrowded(); }
  /// Whether it must forget before it can take a token of so many bytes.
  [[nodiscard]] bool IsFullFor(std::size_t bytes) const {
    return table_.IsFull() || letters_.size() + bytes > kMostLetters;
  }

  /// A token as the memo looks it up; its bytes stay where they are.
  struct Key {
    const char* text;
    std::size_t size;
    /// With the size in its highest bits; 0 for a token that is too long.
    std::uint64_t hash;
  };
  /// Of many tokens.
  template <std::size_t most>
  struct Keys : std::array<Key, most> {
    void Put(std::size_t i, const Key& key) { (*this)[i] = key; }
  };

  /// Makes keys and finds entries, for many tokens: good until the memo changes.
  class Finder {
   public:
    explicit Finder(LongTokenMemo& memo)
        : places_(memo.table_.AllPlaces()),
          seed_(memo.table_.Seed()),
          letters_(memo.letters_.data()) {}

    /// Of a token of more than TokenMemo::kMostBytes bytes.
    [[nodiscard]] Key KeyOf(const char* text, std::size_t size) const;
    /// Begins to fetch what Find will look at first.
    void Prefetch(const Key& key) const { places_.Prefetch(places_.HomeOf(key.hash)); }
    /// Null for a token that is not remembered.
    [[nodiscard]] Entry* Find(const Key& key) const {
      if (key.hash == 0) return nullptr;
      return places_.Find(places_.HomeOf(key.hash), [&](const Entry& entry) {
        return entry.hash == key.hash && AreEqual(letters_ + entry.letters, key.text, key.size);
      });
    }

   private:
    MemoTable<Entry, kMostTokens>::Places places_;
    HashSeed seed_;
    const char* letters_;
  };

  // For a single token.
  [[nodiscard]] Key KeyOf(const char* text, std::size_t size) {
    return Finder(*this).KeyOf(text, size);
  }
  /// kUnknownToken for one that is not remembered.
  [[nodiscard]] TokenOutcome Find(const Key& key) {
    const Entry* const entry = Finder(*this).Find(key);
    return entry != nullptr ? OutcomeOf(*entry) : kUnknownToken;
  }

  [[nodiscard]] TokenOutcome OutcomeOf(const Entry& entry) const { return table_.OutcomeOf(entry); }

  /// `key` is that of a token that is not remembered, in a memo that is not full; one that is too
  /// long is not remembered either.
  void Remember(const Key& key, TokenOutcome outcome);

  /// As MemoTable does.
  template <typename Take>
  void TakeKept(Take take) {
    table_.TakeKept(take);
  }

 private:
  static constexpr unsigned kSizeBits = 6;
  static constexpr std::size_t kMostLetters = std::size_t{1} << 20U;
  /// Tokens of up to so many bytes are read in four parts, which overlap.
  static constexpr std::size_t kFourParts = 32;

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

  MemoTable<Entry, kMostTokens> table_;
  /// Those of all tokens, one behind the other.
  std::vector<char> letters_;
};

inline LongTokenMemo::Key LongTokenMemo::Finder::KeyOf(const char* text, std::size_t size) const {
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
  return {text, size, std::uint64_t{size} << (64 - kSizeBits) | hash >> kSizeBits};
}

inline bool LongTokenMemo::AreEqual(const char* left, const char* right, std::size_t size) {
  if (size > kFourParts) return std::memcmp(left, right, size) == 0;
  const Parts one = PartsOf(left, size);
  const Parts other = PartsOf(right, size);
  return ((one.first ^ other.first) | (one.second ^ other.second) | (one.third ^ other.third) |
          (one.last ^ other.last)) == 0;
}

}  // namespace quillomat
