// The table of the last count's words, as the window shows it: the rows come when a count has ended
// and go before its words do; the order and the filter that the user has chosen stay.
#pragma once

#include <optional>
#include <string>

#include "app/list/current_words.h"
#include "app/table/row_filter.h"
#include "app/table/row_order.h"
#include "app/table/word_rows.h"
#include "system/collation.h"
#include "ui/event.h"

namespace quillomat {

class ResultTable {
 public:
  /// `words` outlives the table.
  ResultTable(const CurrentWords& words, ExpressionReader readExpression);

  /// Fired before other rows are shown, and afterwards.
  Event<> Changing;
  Event<> Changed;

  /// The rows; null while there is no list. Made when first asked for. Where the memory does not
  /// hold them std::bad_alloc is thrown once, and there is no list from then on.
  [[nodiscard]] const WordRows* Rows();

  /// The words that the filter shows; nothing while there is none.
  [[nodiscard]] std::optional<FilteredWords> Filtered();

  void SetOrder(RowOrder order);
  [[nodiscard]] RowOrder Order() const { return order_; }

  /// An expression that is not understood changes nothing but Fault.
  void SetFilter(RowFilter filter);
  [[nodiscard]] const RowFilter& Filter() const { return filter_; }
  /// The last one that was understood: what the rows are filtered by.
  [[nodiscard]] const RowFilter& FilterInForce() const { return filterInForce_; }
  /// The fault is wanted in the language of now.
  void TellFaultAgain();
  /// What is wrong with the filter's expression; "" for nothing.
  [[nodiscard]] const std::string& Fault() const { return fault_; }

 private:
  /// Between Changing and Changed. Rows that a change has failed to make are made anew.
  template <typename Action>
  void Change(Action action) {
    Changing.Fire();
    try {
      action();
    } catch (...) {
      rows_.reset();
      Changed.Fire();
      throw;
    }
    Changed.Fire();
  }
  void MakeRows();

  const CurrentWords& words_;
  ExpressionReader readExpression_;
  Collation collation_;
  bool hasWords_ = false;
  std::optional<WordRows> rows_;
  RowOrder order_;
  RowFilter filter_;
  /// The filter that is understood, and its expression.
  RowFilter filterInForce_;
  Matcher expression_;
  std::string fault_;
};

}  // namespace quillomat
