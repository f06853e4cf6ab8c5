// In which order the rows of the table stand.
#pragma once

#include <cstdint>
#include <vector>

#include "listing/word_table.h"
#include "system/collation.h"

namespace quillomat {

struct RowOrder {
  WordColumn column = WordColumn::kRank;
  bool descending = false;

  [[nodiscard]] bool operator==(const RowOrder&) const = default;
};

/// The alphabetical places of all listed words in the order of the user's language. Costs a key for
/// every word, on all cores; where the language has no order, the words stay in that of the list.
[[nodiscard]] std::vector<std::int32_t> PlacesByWord(const WordTable& words,
                                                     const Collation& collation);

/// The alphabetical places of all listed words in the order of a column that holds numbers; words
/// of the same number are in alphabetical order, whatever the direction. Costs time in proportion
/// to the number of words.
[[nodiscard]] std::vector<std::int32_t> PlacesByNumber(const WordTable& words, RowOrder order);

}  // namespace quillomat
