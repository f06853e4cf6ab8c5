// The word store: every different word of a count with the number of its occurrences.
//
// While words arrive the store is a hash table over the words' sort keys, in order of arrival; the
// alphabetical order is made when somebody first asks for it. Words and keys live in an arena of
// the store: a view taken from a record is good until Clear().
//
// Memory: a record has 40 bytes and a hash slot 8 (at most 3/4 of the slots are in use); the
// letters of the word come on top, and those of its key where it differs from the word.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/file_tally.h"

namespace quillomat {

/// A word longer than this (in characters) is read but never stored when text is counted.
inline constexpr std::size_t kLongWordLimit = 100;

struct WordRec {
  /// The spelling under which the word was first met.
  std::string_view Word;
  /// Accents folded, lower case; two words are the same when their keys are equal.
  std::string_view SortKey;
  std::int32_t Count = 1;
  /// Whether the word is listed; the filters clear it.
  bool Included = true;
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
  WordStore() = default;

  /// Empties the store. The file tracker is left alone.
  void Clear();

  /// Who is told of new words; null for nobody. The listener must outlive the count.
  void SetListener(NewWordListener* listener) { listener_ = listener; }

  /// Counts one occurrence of `word`. With `anyLength` (words files) long words are taken too.
  /// Throws RunTimeError 6 when a count would leave the range of 32 bits. Returns the place of the
  /// word's record, for CountWordAt; nothing when the word is not stored.
  std::optional<std::uint32_t> AddWord(std::string_view word, bool anyLength = false);

  /// Counts one occurrence of the word that AddWord has put at `place`; throws as AddWord does.
  /// Places change when the records are sorted or cleared, and then Generation() changes.
  void CountWordAt(std::uint32_t place) {
    if (files_.IsOn()) files_.NoteCurrentFile();
    CountAgain(place);
  }
  /// Begins to fetch what CountWordAt will change.
  void PrefetchWordAt(std::uint32_t place) const { __builtin_prefetch(&records_[place].Count, 1); }
  [[nodiscard]] std::uint64_t Generation() const { return generation_; }

  [[nodiscard]] std::int32_t NumDifferentWords() const {
    return static_cast<std::int32_t>(records_.size());
  }

  /// The record at alphabetical place `index`, 1 to NumDifferentWords().
  [[nodiscard]] const WordRec& At(std::int32_t index) const {
    if (!sorted_) SortRecords();
    return records_[static_cast<std::size_t>(index - 1)];
  }
  void SetIncluded(std::int32_t index, bool included) {
    if (!sorted_) SortRecords();
    records_[static_cast<std::size_t>(index - 1)].Included = included;
  }
  /// The files of the word at alphabetical place `index`; null when files were not tracked.
  [[nodiscard]] const FileTally* FilesOf(std::int32_t index) const;

  [[nodiscard]] WordTotals TallyWords() const;

  [[nodiscard]] FileTracker& Files() { return files_; }
  [[nodiscard]] const FileTracker& Files() const { return files_; }

 private:
  /// Words are told apart by their keys, so equal hashes are looked at closer. `place` is the
  /// record's place in records_ plus 1; 0 marks a free slot.
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t place = 0;
  };

  /// The slot that holds `key`, or the free slot where it belongs.
  Slot& SlotOf(std::string_view key, std::uint32_t hash);
  void AppendWordRecord(std::string_view word, std::string_view key);
  void CountAgain(std::size_t place);
  void GrowSlots();
  void FillSlots(std::size_t slots);
  std::string_view Keep(std::string_view text);
  void SortRecords() const;

  std::pmr::monotonic_buffer_resource letters_;
  FileTracker files_;
  NewWordListener* listener_ = nullptr;
  std::string keyScratch_;

  // In which order the records stand is nobody's affair but the store's: hence mutable.
  mutable std::vector<WordRec> records_;
  /// Parallel to records_ while files are tracked, else empty.
  mutable std::vector<FileTally> tallies_;
  /// Empty while the records are sorted: sorting moves them, and words seldom arrive afterwards.
  mutable std::vector<Slot> slots_;
  mutable bool sorted_ = true;
  mutable std::uint64_t generation_ = 0;
};

}  // namespace quillomat
