// Counted words and the rows of their table.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/table/word_rows.h"
#include "engine/word_store.h"
#include "listing/frequency_ranking.h"
#include "listing/word_table.h"
#include "system/collation.h"

namespace quillomat {

/// An order that is no language's, so that it is the same everywhere: by the last letters first.
class BackwardCollation final : public Collation {
 public:
  [[nodiscard]] bool IsKnown() const override { return true; }
  void AppendKey(std::string& keys, std::string_view word) const override {
    keys.append(word.rbegin(), word.rend());
  }
};

class TableFixture : public testing::Test {
 protected:
  void Add(std::string_view word, int times = 1) {
    for (int i = 0; i < times; ++i) store_.AddWord(word);
  }
  /// Ends the count: sums, ranks, and the rows of the table.
  WordRows& Rows() {
    if (!rows_) {
      totals_ = store_.TallyWords();
      ranking_ = RankByFrequency(store_);
      rows_.emplace(WordTable({store_, ranking_, totals_}, kWordsRead), collation_);
    }
    return *rows_;
  }

  /// The words that are shown, with a blank between them.
  [[nodiscard]] std::string Shown() {
    std::string words;
    for (std::size_t row = 0; row < Rows().Size(); ++row) {
      if (row > 0) words += ' ';
      words += Rows().RowAt(row).word;
    }
    return words;
  }
  std::string Ordered(WordColumn column, bool descending = false) {
    Rows().SetOrder({column, descending});
    return Shown();
  }
  std::string Filtered(FilterKind kind, const std::string& text, Matcher expression = {}) {
    Rows().SetFilter({kind, text}, std::move(expression));
    return Shown();
  }

  static constexpr std::int32_t kWordsRead = 1000;
  WordStore store_;

 private:
  WordTotals totals_;
  FrequencyRanking ranking_;
  BackwardCollation collation_;
  std::optional<WordRows> rows_;
};

}  // namespace quillomat
