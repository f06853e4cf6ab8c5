// What became of the tokens that a scan has met, so that the next one like it costs one look-up.
//
// Holds the tokens of at most kMostBytes bytes, and at most kMostTokens of them: a text with more
// different tokens makes it start anew from time to time. Its entries have 1 MiB where up to 16,384
// tokens are remembered, as in nearly all texts: they are to stay in the caches nearest to the
// processor, and four tokens share a line of them. The most they have is 4 MiB.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "engine/memo_table.h"
#include "engine/token_outcome.h"
#include "engine/word_hash.h"

namespace quillomat {

class TokenMemo {
 public:
  static constexpr std::size_t kMostBytes = 12;

  struct Entry : MemoEntry {
    std::uint32_t high = 0;
    std::uint64_t low = 0;  // 0 marks a free entry

    [[nodiscard]] bool IsFree() const { return low == 0; }
  };
  static constexpr std::size_t kMostTokens = 131'072;

  explicit TokenMemo(const HashSeed& seed = DrawnHashSeed()) : table_(seed) {}

  void Forget() { table_.Forget(); }
  void Clear() { table_.Clear(); }
  [[nodiscard]] bool IsCrowded() const { return table_.IsCrowded(); }
  [[nodiscard]] bool IsFullFor(std::size_t /*bytes*/) const { return table_.IsFull(); }

  /// A token as the memo looks it up: its bytes, of which none is 0, with zeros behind them.
  struct Key {
    std::uint64_t low;
    std::uint32_t high;
    /// Where the look-up starts, until the memo changes.
    std::uint32_t home;
  };

  /// The keys of many tokens, like parts together: in lines of whole keys, the processor would have
  /// to work out where each stands.
  template <std::size_t most>
  struct Keys {  // NOLINT(cppcoreguidelines-pro-type-member-init): written before they are read
    std::array<std::uint64_t, most> low;
    std::array<std::uint32_t, most> high;
    std::array<std::uint32_t, most> home;

    void Put(std::size_t i, const Key& key) {
      low[i] = key.low;
      high[i] = key.high;
      home[i] = key.home;
    }
    [[nodiscard]] Key operator[](std::size_t i) const { return {low[i], high[i], home[i]}; }
  };

  /// Makes keys and finds entries, for many tokens: good until the memo changes.
  class Finder {
   public:
    explicit Finder(TokenMemo& memo)
        : places_(memo.table_.AllPlaces()), seed_(memo.table_.Seed()) {}

    /// Of the first `size` bytes at `text`, 1 to kMostBytes; `readable` bytes can be read there.
    [[nodiscard]] Key KeyOf(const char* text, std::size_t size, std::size_t readable) const;
    /// The same where kMostBytes can be read.
    [[nodiscard]] Key KeyInside(const char* text, std::size_t size) const {
      return KeyOf(text, size, kMostBytes);
    }
    /// Begins to fetch what Find will look at.
    void Prefetch(const Key& key) const { places_.Prefetch(key.home); }
    /// Null for a token that is not remembered. Both parts are compared before anything is decided,
    /// which leaves the processor one guess.
    [[nodiscard]] Entry* Find(const Key& key) const {
      return places_.Find(key.home, [&](const Entry& entry) {
        return ((entry.low ^ key.low) | (entry.high ^ key.high)) == 0;
      });
    }

   private:
    MemoTable<Entry, kMostTokens>::Places places_;
    HashSeed seed_;
  };

  // For a single token.
  [[nodiscard]] Key KeyOf(const char* text, std::size_t size, std::size_t readable) {
    return Finder(*this).KeyOf(text, size, readable);
  }
  /// kUnknownToken for one that is not remembered.
  [[nodiscard]] TokenOutcome Find(const Key& key) {
    const Entry* const entry = Finder(*this).Find(key);
    return entry != nullptr ? OutcomeOf(*entry) : kUnknownToken;
  }

  [[nodiscard]] TokenOutcome OutcomeOf(const Entry& entry) const { return table_.OutcomeOf(entry); }

  /// `key` is that of a token that is not remembered, in a memo that is not full.
  void Remember(const Key& key, TokenOutcome outcome);

  /// As MemoTable does.
  template <typename Take>
  void TakeKept(Take take) {
    table_.TakeKept(take);
  }

 private:
  /// By the size of a token, masks of the bytes that belong to it: in the lower part of its key and
  /// in the upper. The first byte is the lowest of a number.
  struct OwnBytes {
    std::array<std::uint64_t, kMostBytes + 1> low;
    std::array<std::uint32_t, kMostBytes + 1> high;
  };
  static constexpr OwnBytes kOwnBytes = [] {
    OwnBytes masks{};
    for (std::size_t size = 1; size <= kMostBytes; ++size) {
      masks.low[size] = size >= 8 ? ~std::uint64_t{0} : ~std::uint64_t{0} >> (64 - 8 * size);
      if (size > 8) masks.high[size] = ~std::uint32_t{0} >> (96 - 8 * size);
    }
    return masks;
  }();

  /// The key without its home, of a token behind which too little can be read.
  [[nodiscard]] static Key BytesAtEnd(std::string_view token);

  MemoTable<Entry, kMostTokens> table_;
};

inline TokenMemo::Key TokenMemo::Finder::KeyOf(const char* text, std::size_t size,
                                               std::size_t readable) const {
  Key key{};
  if (readable >= kMostBytes) [[likely]] {
    key.low = LoadNumber<std::uint64_t>(text) & kOwnBytes.low[size];
    key.high = LoadNumber<std::uint32_t>(text + sizeof key.low) & kOwnBytes.high[size];
  } else {
    key = BytesAtEnd({text, size});
  }
  const std::uint64_t hash = FoldedProduct(key.low ^ seed_.first, key.high ^ seed_.second);
  key.home = places_.HomeOf(hash);
  return key;
}

}  // namespace quillomat
