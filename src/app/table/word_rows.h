// The rows of the table of words: which words are shown, and in which order. A row is a number;
// what stands in it is looked up when somebody looks.
//
// Good until the words are counted anew.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "app/table/row_filter.h"
#include "app/table/row_order.h"
#include "listing/word_table.h"
#include "system/collation.h"

namespace quillomat {

class WordRows {
 public:
  /// All words, by rank. `collation` outlives the rows.
  WordRows(const WordTable& words, const Collation& collation);

  void SetOrder(RowOrder order);
  [[nodiscard]] RowOrder Order() const { return order_; }

  /// Shows the words that fit. `expression` is needed for a filter of that kind.
  void SetFilter(const RowFilter& filter, Matcher expression = {});

  /// How many rows are shown, and how often their words occur.
  [[nodiscard]] std::size_t Size() const { return shown_.size(); }
  [[nodiscard]] std::int64_t Instances() const { return instances_; }

  [[nodiscard]] WordRow RowAt(std::size_t row) const { return words_.RowOf(shown_[row]); }
  /// The alphabetical places of the words that are shown, in their order.
  [[nodiscard]] const std::vector<std::int32_t>& Places() const { return shown_; }
  /// Where a word is shown.
  [[nodiscard]] std::optional<std::size_t> RowOfPlace(std::int32_t place) const;

  /// The first row from `from` on, and round the end, whose word begins with `text` as the list
  /// folds it.
  [[nodiscard]] std::optional<std::size_t> FindBeginning(std::string_view text,
                                                         std::size_t from) const;

  [[nodiscard]] const WordTable& Words() const { return words_; }

 private:
  [[nodiscard]] std::vector<std::int32_t> PlacesInOrder();
  void Match(const WordMatcher& matcher);
  void ShowMatching();

  WordTable words_;
  const Collation& collation_;
  RowOrder order_;
  /// All listed words in the order of the language; made when first asked for.
  std::vector<std::int32_t> byWord_;
  /// All listed words in the order of the rows.
  std::vector<std::int32_t> ordered_;
  /// For each alphabetical place; empty when all are.
  std::vector<char> matches_;
  std::vector<std::int32_t> shown_;
  std::int64_t instances_ = 0;
};

}  // namespace quillomat
