// The counted words as rows of a table: what a person quotes of each. A row is worked out when
// somebody looks at it; beside the ranking nothing is kept but a sum for every few ranks.
//
// Shares are of all words that were read, counted or not ("Total number of instances of words"), so
// a list with words left out, or of a few words only, still says how frequent each is in the text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "listing/list_line.h"

namespace quillomat {

enum class WordColumn {
  kRank,
  kWord,
  kFrequency,
  kPercent,
  kPerMillion,
  kCumulative,
  kLength,
  kFiles,
  /// A path: of each word there is a row for every file that it occurs in, and its frequency is the
  /// one in that file. For exports only.
  kFile,
};

/// The names of the columns in files and on the command line, in the order of WordColumn.
inline constexpr std::array<std::string_view, 9> kWordColumnNames = {
    "rank", "word", "frequency", "percent", "per-million", "cumulative", "length", "files", "file"};

/// Whether people who sort by the column want its largest numbers first.
[[nodiscard]] constexpr bool StartsWithTheLargest(WordColumn column) {
  return column != WordColumn::kRank && column != WordColumn::kWord &&
         column != WordColumn::kCumulative && column != WordColumn::kFile;
}

[[nodiscard]] std::optional<WordColumn> WordColumnOfName(std::string_view name);
[[nodiscard]] constexpr std::string_view NameOf(WordColumn column) {
  return kWordColumnNames[static_cast<std::size_t>(column)];
}

struct WordRow {
  /// A position by frequency, from 1, never shared.
  std::int32_t rank = 0;
  /// Good until the words are counted anew.
  std::string_view word;
  std::int32_t frequency = 0;
  /// Of all words read.
  double percent = 0;
  double perMillion = 0;
  /// The percents of this and all smaller ranks together.
  double cumulativePercent = 0;
  /// In characters.
  std::size_t length = 0;
  /// How many files the word occurs in; nothing when that was not counted.
  std::optional<std::int32_t> files;
};

class WordTable {
 public:
  /// `words` are ranked, and outlive the table. `wordsRead`: how many words the text has.
  WordTable(const CountedWords& words, std::int32_t wordsRead);

  /// The number of listed words.
  [[nodiscard]] std::size_t Size() const { return words_.ranking.byRank.size(); }

  /// The row of the listed word at alphabetical place `index` of the store.
  [[nodiscard]] WordRow RowOf(std::int32_t index) const;

  /// Makes the frequency of a row that in a part of the text, with the shares that it has of all
  /// words read: those of the parts add up to that of the whole. All else stays the word's.
  void SetFrequency(WordRow& row, std::int32_t frequency) const;

  /// Alphabetical places of the listed words, the most frequent first.
  [[nodiscard]] const std::vector<std::int32_t>& ByFrequency() const {
    return words_.ranking.byRank;
  }
  /// The same in alphabetical order.
  [[nodiscard]] std::vector<std::int32_t> Alphabetical() const;

  /// Whether it is known in how many files each word occurs.
  [[nodiscard]] bool KnowsFiles() const { return words_.store.Files().IsOn(); }
  [[nodiscard]] const CountedWords& Words() const { return words_; }

 private:
  [[nodiscard]] std::int64_t FrequenciesUpTo(std::int32_t rank) const;
  [[nodiscard]] double ShareOf(std::int64_t frequency) const;

  CountedWords words_;
  std::int32_t wordsRead_;
  /// The frequencies of the first 0, kRanksPerSum, 2 kRanksPerSum ... ranks together.
  std::vector<std::int64_t> sums_;
};

}  // namespace quillomat
