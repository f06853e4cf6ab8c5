// The word store: every different word of a count with the number of its occurrences.
//
// While words arrive the store is a hash table over the words' sort keys, in order of arrival; the
// alphabetical order is made when somebody first asks for it. Words and keys live in the store: a
// view taken from a record is good until the next word is added or the store cleared.
//
// Memory: a word has 37 bytes, of which 30 hold its letters and those of its key where it differs
// from the word, and a hash slot 8 (between 3/8 and 3/4 of the slots are in use). Sorting takes 32
// more, and for a moment the 37 again. Words that do not fit have their letters on top.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory_resource>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/checked_count.h"
#include "base/in_parts.h"
#include "engine/chunked_vector.h"
#include "engine/count_keeper.h"
#include "engine/file_tally.h"
#include "engine/letter_arena.h"
#include "engine/letter_rule.h"
#include "engine/word_hash.h"
#include "engine/word_letters.h"
#include "engine/word_order.h"

namespace quillomat {

/// A word longer than this (in characters) is read but never stored when text is counted.
inline constexpr std::size_t kLongWordLimit = 100;

[[nodiscard]] bool IsLongWord(std::string_view word);

struct WordRec {
  /// The spelling under which the word was first met.
  std::string_view Word;
  /// Accents folded, lower case; two words are the same when their keys are equal.
  std::string_view SortKey;
  std::int32_t Count = 1;
  /// Whether the word is listed; the filters clear it.
  bool Included = true;
};

/// A word on its way into the store.
struct KeyedWord {
  std::string_view word;
  /// Its sort key.
  std::string_view key;
  /// WordStore::HashOf the key.
  std::uint32_t hash = 0;
};

/// A word while the store is sorted.
struct SortEntry {
  /// The first of its key.
  std::uint64_t leadingBytes;
  std::uint32_t place;
};

/// Sums over the store.
struct WordTotals {
  std::int32_t NumIncludedWords = 0;
  std::int32_t NumExcludedWords = 0;
  /// The occurrences of the included words.
  std::int32_t TotalIncludedCount = 0;
  std::int32_t MaxCount = 0;
  /// In characters.
  std::int16_t MaxWordLength = 0;
};

/// Is told of every word that is met for the first time.
class NewWordListener {
 public:
  NewWordListener() = default;
  NewWordListener(const NewWordListener&) = delete;
  NewWordListener& operator=(const NewWordListener&) = delete;
  NewWordListener(NewWordListener&&) = delete;
  NewWordListener& operator=(NewWordListener&&) = delete;
  virtual ~NewWordListener() = default;

  /// `numDifferentWords` counts the new word too.
  virtual void OnNewWord(std::string_view word, std::int32_t numDifferentWords) = 0;
};

class WordStore {
 public:
  /// `seed` is that of the first hashes.
  explicit WordStore(const HashSeed& seed = DrawnHashSeed()) : seed_(seed) {}

  /// What makes words the same from now on; to be told while the store is empty.
  void SetKeyRule(KeyRule rule) { keyRule_ = rule; }
  /// By which the words have their keys.
  [[nodiscard]] KeyRule Rule() const { return keyRule_; }

  /// Empties the store. The file tracker is left alone.
  void Clear();

  /// Who is told of new words; null for nobody. The listener must outlive the count.
  void SetListener(NewWordListener* listener) { listener_ = listener; }

  /// Who is told of every occurrence in the order of the text; null for nobody. The listener must
  /// outlive the count. Those who scan a text into the store tell it, the store does not.
  void SetOrderListener(WordOrderListener* listener) { orderListener_ = listener; }
  [[nodiscard]] WordOrderListener* OrderListener() const { return orderListener_; }

  /// Counts one occurrence of `word`. With `anyLength` (words files) long words are taken too.
  /// Throws RunTimeError 6 when a count would leave the range of 32 bits. Returns the place of the
  /// word, for CountWordAt; nothing when the word is not stored.
  std::optional<std::uint32_t> AddWord(std::string_view word, bool anyLength = false);
  /// The same for a word that is short enough to be stored and whose key is known.
  std::uint32_t AddKeyedWord(const KeyedWord& word);

  // For many new words at once: the slots of all are fetched, then what the slots point to, and
  // then the words are added. Hashes are good until SettleHashes is called.

  /// Takes another seed when a word lies too far from its slot. To be called before hashes are
  /// asked for, once for some words.
  void SettleHashes() {
    if (crowded_) ChangeSeed();
  }
  [[nodiscard]] std::uint32_t HashOf(std::string_view key) const { return HashOfWord(key, seed_); }
  /// How often another seed was taken.
  [[nodiscard]] std::size_t SeedChanges() const { return seedChanges_; }
  void PrefetchSlot(std::uint32_t hash) const {
    if (!slots_.empty()) __builtin_prefetch(&slots_[hash >> slotShift_]);
  }
  // Inline whatever it takes: compilers leave out a call of what does nothing but this.
  [[gnu::always_inline]] void PrefetchLetters(std::uint32_t hash) const {
    if (slots_.empty()) return;
    constexpr std::size_t kLooked = 8;  // those behind are in another line of the memory
    const std::size_t mask = slots_.size() - 1;
    const std::size_t home = hash >> slotShift_;
    for (std::size_t i = home; i < home + kLooked; ++i) {
      const Slot& slot = slots_[i & mask];
      if (slot.place == 0) return;
      if (slot.hash != hash) continue;
      __builtin_prefetch(&letters_[slot.place - 1]);
      __builtin_prefetch(&counts_[slot.place - 1], 1);
      return;
    }
  }

  /// Counts occurrences of the word that AddWord has put at `place`; throws as AddWord does. Places
  /// change when the words are sorted or cleared, and then Generation() changes.
  void CountWordAt(std::uint32_t place, std::int32_t times = 1) {
    if (files_.IsOn() || notesCounted_ || !HasRoomFor(times)) {
      return CountWordWithNotes(place, times);
    }
    counts_[place] += times;
    occurrences_ += times;
  }
  /// One occurrence of each.
  void CountWordsAt(std::span<const std::uint32_t> places) {
    const auto times = static_cast<std::int64_t>(places.size());
    if (files_.IsOn() || notesCounted_ || !HasRoomFor(times)) return CountWithNotes(places);
    for (const std::uint32_t place : places) ++counts_[place];
    occurrences_ += times;
  }

  // Who scans a text may keep counts for a while: the store asks for them before they matter.

  /// Whether `times` more occurrences may be kept: nobody wants to know them one by one.
  [[nodiscard]] bool MayBeKept(std::size_t times) const {
    return !files_.IsOn() && !notesCounted_ && !sorted_ &&
           HasRoomFor(static_cast<std::int64_t>(times));
  }
  /// Notes that `keeper` keeps so many more, of which some may turn out to be of no word of the
  /// store. It outlives them, or calls ReleaseKeeper before it ends.
  void KeepCounts(CountKeeper& keeper, std::size_t times) {
    keeper_.Set(keeper);
    occurrences_ += static_cast<std::int64_t>(times);
  }
  /// For the keeper that brings what it has kept of the word at `place`.
  void AddKept(std::uint32_t place, std::int32_t times) { counts_[place] += times; }
  /// Has what is kept brought, if anything is.
  void BringCounts() const { keeper_.BringCounts(); }
  void ReleaseKeeper(const CountKeeper& keeper) {
    if (keeper_.Is(keeper)) BringCounts();
  }
  [[nodiscard]] std::uint64_t Generation() const { return generation_; }

  /// The spelling of the word that AddWord has put at `place`.
  [[nodiscard]] std::string_view WordAtPlace(std::uint32_t place) const {
    return letters_[place].Word();
  }
  struct CountedWord {
    std::uint32_t place = 0;
    std::int32_t times = 0;
  };
  /// Whether words are noted for TakeCountedWords from now on, so that it need not look at all.
  /// To be called when no word is counted yet, or they have been taken.
  void NoteCountedWords(bool on) { notesCounted_ = on; }
  /// The words that were counted since the last call, and how often; those that are new since then
  /// in the order in which they were met. All counts begin anew at 0.
  [[nodiscard]] std::vector<CountedWord> TakeCountedWords();

  [[nodiscard]] std::int32_t NumDifferentWords() const {
    return static_cast<std::int32_t>(letters_.Size());
  }

  // By alphabetical places. The first question after a word was added sorts the words, even in a
  // store that is constant: several threads may ask only once one of them has, or after Sort.
  // PrefetchAt alone sorts nothing, and fetches others while the words are not sorted.

  /// Sorts the words if they are not sorted, on so many threads if there are many words.
  void Sort(std::size_t threads) const {
    if (!sorted_) SortRecords(threads);
  }
  /// The record at alphabetical place `index`, 1 to NumDifferentWords().
  [[nodiscard]] WordRec At(std::int32_t index) const {
    if (!sorted_) SortRecords();
    const auto place = static_cast<std::size_t>(index - 1);
    return {letters_[place].Word(), letters_[place].Key(), counts_[place], included_[place] != 0};
  }
  // Parts of that record, for those who need no more.
  [[nodiscard]] std::string_view WordOf(std::int32_t index) const {
    if (!sorted_) SortRecords();
    return letters_[static_cast<std::size_t>(index - 1)].Word();
  }
  [[nodiscard]] std::int32_t CountOf(std::int32_t index) const {
    if (!sorted_) SortRecords();
    return counts_[static_cast<std::size_t>(index - 1)];
  }
  [[nodiscard]] bool IsIncluded(std::int32_t index) const {
    if (!sorted_) SortRecords();
    return included_[static_cast<std::size_t>(index - 1)] != 0;
  }
  /// Begins to fetch the word and its count; sorts nothing, and so fetches others while the words
  /// are not sorted.
  void PrefetchAt(std::int32_t index) const {
    const auto place = static_cast<std::size_t>(index - 1);
    __builtin_prefetch(&letters_[place]);
    __builtin_prefetch(&counts_[place]);
  }
  void SetIncluded(std::int32_t index, bool included) {
    if (!sorted_) SortRecords();
    included_[static_cast<std::size_t>(index - 1)] = static_cast<char>(included);
  }
  /// The files of the word at alphabetical place `index`; null when files were not tracked.
  [[nodiscard]] const FileTally* FilesOf(std::int32_t index) const;

  /// On so many threads, if there are many words.
  [[nodiscard]] WordTotals TallyWords(std::size_t threads = 1) const;

  /// Whether the word at `place` may be counted so often in the file being scanned before its tally
  /// there is an overflow. False is also possible where it may: of the files beyond those that are
  /// listed.
  [[nodiscard]] bool TallyTakes(std::uint32_t place, std::int32_t times) const;
  /// The same of a word that the store need not have.
  [[nodiscard]] bool TallyTakes(std::string_view word, std::int32_t times) const;

  [[nodiscard]] FileTracker& Files() { return files_; }
  [[nodiscard]] const FileTracker& Files() const { return files_; }

 private:
  /// Words are told apart by their keys, so equal hashes are looked at closer. `place` is the
  /// word's place plus 1; 0 marks a free slot.
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t place = 0;
  };

  /// A table that is three quarters full and has 2^31 words reaches this distance once in ten
  /// million times, smaller ones never.
  static constexpr std::size_t kFarthest = 1024;

  /// Whether no count can overflow within the next `times` occurrences.
  [[nodiscard]] bool HasRoomFor(std::int64_t times) const {
    return occurrences_ + times <= std::numeric_limits<std::int32_t>::max();
  }
  void CountWordWithNotes(std::uint32_t place, std::int32_t times);
  void CountWithNotes(std::span<const std::uint32_t> places);
  [[nodiscard]] std::size_t FindSlot(const KeyedWord& word) const;
  void AppendWord(const KeyedWord& word);
  void MakeRoom();
  void GrowSlots();
  void FillSlots(std::size_t slots);
  void SetSlots(std::size_t slots);
  void ChangeSeed();
  void SortRecords(std::size_t threads = 1) const;
  void FillEntries(std::span<SortEntry> entries, std::size_t threads) const;
  void SortEntries(std::span<SortEntry> entries, std::size_t threads) const;
  void SortByKeys(std::span<SortEntry> entries) const;
  void ArrangeWords(std::span<const SortEntry> order, std::size_t threads) const;
  [[nodiscard]] WordTotals TallyPart(const Part& part) const;

  /// In front of what it brings counts to.
  mutable CountKeeperLink keeper_;
  FileTracker files_;
  NewWordListener* listener_ = nullptr;
  KeyRule keyRule_;
  WordOrderListener* orderListener_ = nullptr;
  std::string keyScratch_;

  // In which order the words stand is nobody's affair but the store's: hence mutable.
  LetterArena arena_;
  // The words by place, in parallel.
  mutable ChunkedVector<WordLetters> letters_;
  mutable std::pmr::vector<std::int32_t> counts_;
  /// Words that are not sorted yet have no place in it: they are included.
  mutable std::pmr::vector<char> included_;
  /// While files are tracked, else empty.
  mutable std::vector<FileTally> tallies_;
  /// Empty while the words are sorted: sorting moves them, and words seldom arrive afterwards.
  mutable std::pmr::vector<Slot> slots_;
  mutable unsigned slotShift_ = 0;
  HashSeed seed_;
  bool crowded_ = false;
  std::size_t seedChanges_ = 0;
  mutable bool sorted_ = true;
  mutable std::uint64_t generation_ = 0;
  /// Of all words together, with those that are kept: no count is higher.
  std::int64_t occurrences_ = 0;
  bool notesCounted_ = false;
  /// The places of words whose count is not 0, if it notes them.
  std::vector<std::uint32_t> counted_;
};

}  // namespace quillomat
