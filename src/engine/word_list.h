// The lists of words that a count goes by: words to ignore and count-only words, each typed by hand
// ("extra") or read from a words file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "base/run_segmenter.h"
#include "engine/letter_rule.h"
#include "engine/word_hash.h"

namespace quillomat {

/// The two kinds of list; also the index of the controls that belong to them.
enum class WordListKind { kIgnore = 0, kCountOnly = 1 };

/// For a standard container of words.
struct SeededHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view word) const {
    return static_cast<std::size_t>(LongHashOfWord(word, seed));
  }
  HashSeed seed = DrawnHashSeed();
};

/// A list of words in small letters, in its own order and spelling. A word of a text is found in
/// any letter case, with the same accents: by the western rule through its small letters, of all
/// letters through Unicode's simple case folding, for which all sigmas are one.
class WordList {
 public:
  WordList() = default;
  /// Empty words stand in the list, and count, but are never found.
  explicit WordList(std::vector<std::string> words, LetterRule letters = LetterRule::kWestern);

  [[nodiscard]] bool IsInList(std::string_view word) const;
  [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(words_.size()); }
  [[nodiscard]] const std::vector<std::string>& Words() const { return words_; }

 private:
  /// Without letter case.
  [[nodiscard]] std::string_view FormOf(std::string_view word, std::string& scratch) const;

  std::vector<std::string> words_;
  LetterRule letters_ = LetterRule::kWestern;
  std::unordered_set<std::string, SeededHash, std::equal_to<>> lookup_;
};

/// What the lists say of a word.
enum class ListVerdict : std::uint8_t {
  kAdmitted,
  /// It is one of the words to ignore: typed, or of the words file.
  kTypedToIgnore,
  kFileToIgnore,
  /// Only other words are counted.
  kNotCountOnly,
};

struct WordLists {
  WordList IgnoreList;
  WordList ExtraIgnoreList;
  WordList CountOnlyList;
  WordList ExtraCountOnlyList;

  /// Whether any count-only word is given: then only these are counted, and the words to ignore
  /// have no effect.
  [[nodiscard]] bool HasCountOnlyWords() const {
    return CountOnlyList.Count() >= 1 || ExtraCountOnlyList.Count() >= 1;
  }

  [[nodiscard]] ListVerdict VerdictOn(std::string_view word, bool countOnlyMode) const;
  /// Whether the lists let `word` be counted.
  [[nodiscard]] bool Admits(std::string_view word, bool countOnlyMode) const {
    return VerdictOn(word, countOnlyMode) == ListVerdict::kAdmitted;
  }
};

struct SplitResult {
  /// False when there were too many items; `items` is empty then.
  bool fits = true;
  std::vector<std::string> items;
};

/// Cuts `text` at every character of `separators`. Separators in a row make no empty item. At most
/// `capacity` items fit.
[[nodiscard]] SplitResult SplitList(std::string_view text, std::string_view separators,
                                    std::size_t capacity);

/// The most words that a list typed by hand takes.
inline constexpr std::size_t kMaxTypedWords = 1000;

/// A list typed by hand, lower-cased, split at blanks, tabs and line breaks, and with the trailing
/// characters "-'_.,:" taken off each word; an item of such characters alone is no word. `fits` is
/// false when it has more than kMaxTypedWords items. Of all letters the text is brought into normal
/// form, and an item with letters of scripts without blanks is cut into the words that it is in a
/// text.
[[nodiscard]] SplitResult ParseTypedWords(std::string_view text,
                                          LetterRule letters = LetterRule::kWestern,
                                          SegmenterMaker makeSegmenter = nullptr);

}  // namespace quillomat
