// The table of a memo of tokens (token_memo.h, long_token_memo.h): what each token is worth, and
// how often it was met since its count was last brought to the store.
//
// To count where a token is looked up costs half of what it costs to find out which word it is and
// to count that: the entry is at hand, and a text has few different tokens.
//
// Tokens that meet in one place make the table crowded; once cleared, it goes by another seed.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory_resource>
#include <span>
#include <utility>
#include <vector>

#include "engine/token_outcome.h"
#include "engine/word_hash.h"

namespace quillomat {

/// An Entry has the members of MemoEntry, and IsFree() says whether no token has it.
struct MemoEntry {
  /// Occurrences that the store does not know of; for a token that is not one word always
  /// kNeverKept, so that one comparison tells.
  std::int32_t kept = 0;

  static constexpr std::int32_t kNeverKept = std::numeric_limits<std::int32_t>::min();
};

/// Of at most `mostTokens` tokens, a power of two.
template <typename Entry, std::size_t mostTokens>
class MemoTable {
 public:
  explicit MemoTable(const HashSeed& seed)
      : seed_(seed), entries_(kFirstEntries), outcomes_(kFirstEntries, kUnknownToken) {}

  /// Forgets all tokens and their counts.
  void Forget() {
    std::ranges::fill(entries_, Entry());
    tokens_ = 0;
  }
  /// The same, and takes another seed if the table is crowded.
  void Clear() {
    Forget();
    if (crowded_) seed_ = HashSeedAfter(seed_);
    crowded_ = false;
  }

  /// Whether a token lies so far from its place that the table should be cleared, for which it is
  /// ready as soon as no key is in use that was made before.
  [[nodiscard]] bool IsCrowded() const { return crowded_; }
  /// Whether it must forget before it can take a token.
  [[nodiscard]] bool IsFull() const { return tokens_ == mostTokens; }

  [[nodiscard]] const HashSeed& Seed() const { return seed_; }

  /// Where to look for a token, for many look-ups: good until the table changes. The home of a
  /// token is where its look-up starts, so many bytes behind the first entry: to number the entries
  /// would take the processor a step more, to find where each lies.
  struct Places {
    Entry* entries;
    TokenOutcome* outcomes;
    std::uint32_t homeMask;

    /// By the lowest bits, which in a FoldedProduct are made of the middle of the product: all
    /// bytes of a token bear on them.
    [[nodiscard]] std::uint32_t HomeOf(std::uint64_t hash) const {
      return static_cast<std::uint32_t>(hash) & homeMask;
    }
    [[nodiscard]] Entry* At(std::uint32_t home) const {
      return reinterpret_cast<Entry*>(reinterpret_cast<std::byte*>(entries) + home);
    }
    void Prefetch(std::uint32_t home) const { __builtin_prefetch(At(home), 1); }
    /// The entry of a token for which `isWanted` is true; null when there is none.
    template <typename IsWanted>
    [[nodiscard]] Entry* Find(std::uint32_t home, IsWanted isWanted) const {
      Entry* const first = At(home);
      if (isWanted(*first)) [[likely]]
        return first;
      return FindFurther(first, isWanted);
    }
    /// Of a token that does not have its home, the entry `first`. It changes places with the token
    /// there once it was met more often: the processor expects to find tokens in their homes, and
    /// where it is wrong, that takes it as long as a look-up.
    template <typename IsWanted>
    [[nodiscard]] Entry* FindFurther(Entry* first, IsWanted isWanted) const {
      const std::size_t mask = homeMask / sizeof(Entry);
      const auto home = static_cast<std::size_t>(first - entries);
      for (std::size_t i = home; !entries[i].IsFree();) {
        i = (i + 1) & mask;
        if (!isWanted(entries[i])) continue;
        if (entries[i].kept <= first->kept) return entries + i;
        std::swap(entries[i], *first);
        std::swap(outcomes[i], outcomes[home]);
        return first;
      }
      return nullptr;
    }
  };
  [[nodiscard]] Places AllPlaces() { return {entries_.data(), outcomes_.data(), HomeMask()}; }

  [[nodiscard]] TokenOutcome OutcomeOf(const Entry& entry) const {
    return outcomes_[static_cast<std::size_t>(&entry - entries_.data())];
  }

  /// Of a token that is not in the table, which is not full. `hashOf` gives the hash of an entry.
  template <typename HashOf>
  void Remember(Entry entry, TokenOutcome outcome, HashOf hashOf) {
    if (tokens_ * kEntriesPerToken >= entries_.size() && entries_.size() < kMostEntries)
      Grow(hashOf);
    entry.kept = IsOneWord(outcome) ? 0 : MemoEntry::kNeverKept;
    Put(entry, outcome, hashOf(entry));
    ++tokens_;
  }

  /// Gives `take` what the tokens with counts are worth, and the counts, which begin anew.
  template <typename Take>
  void TakeKept(Take take) {
    // Nobody can foresee which tokens have been met: they are found without a branch.
    std::array<std::size_t, kFirstEntries> found;  // NOLINT(*-member-init): written first
    for (std::size_t first = 0; first < entries_.size(); first += found.size()) {
      std::size_t count = 0;
      for (std::size_t i = first; i < first + found.size(); ++i) {
        found[count] = i;
        count += static_cast<std::size_t>(entries_[i].kept > 0);
      }
      for (const std::size_t i : std::span(found).first(count)) {
        take(outcomes_[i], std::exchange(entries_[i].kept, 0));
      }
    }
  }

 private:
  static constexpr std::size_t kFirstEntries = 64;  // a power of two, as every number of entries
  /// A quarter of them is used while the table grows, so that nearly all tokens have their homes,
  /// and half of them at last.
  static constexpr std::size_t kEntriesPerToken = 4;
  static constexpr std::size_t kMostEntries = 2 * mostTokens;
  /// No half-filled table of chance comes near it.
  static constexpr std::size_t kFarthest = 256;

  [[nodiscard]] std::uint32_t HomeMask() const {
    static_assert(std::has_single_bit(sizeof(Entry)));
    return static_cast<std::uint32_t>((entries_.size() - 1) * sizeof(Entry));
  }

  template <typename HashOf>
  void Grow(HashOf hashOf) {
    // Where there is no memory for it, all stays.
    std::pmr::vector<Entry> entries(2 * entries_.size());
    std::vector<TokenOutcome> outcomes(entries.size(), kUnknownToken);
    entries.swap(entries_);
    outcomes.swap(outcomes_);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (!entries[i].IsFree()) Put(entries[i], outcomes[i], hashOf(entries[i]));
    }
  }

  void Put(const Entry& entry, TokenOutcome outcome, std::uint64_t hash) {
    const std::size_t mask = entries_.size() - 1;
    const std::size_t home = AllPlaces().HomeOf(hash) / sizeof(Entry);
    std::size_t i = home;
    while (!entries_[i].IsFree()) i = (i + 1) & mask;
    entries_[i] = entry;
    outcomes_[i] = outcome;
    if (((i - home) & mask) > kFarthest) crowded_ = true;
  }

  HashSeed seed_;
  bool crowded_ = false;
  std::pmr::vector<Entry> entries_;
  /// By entry, apart from it since they are seldom asked for.
  std::vector<TokenOutcome> outcomes_;
  std::size_t tokens_ = 0;
};

}  // namespace quillomat
