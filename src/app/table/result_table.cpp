#include "app/table/result_table.h"

#include <utility>
#include <variant>

namespace quillomat {

ResultTable::ResultTable(const CurrentWords& words, ExpressionReader readExpression)
    : words_(words), readExpression_(std::move(readExpression)) {
  words_.WordsRanked.Connect([this] { Change([this] { hasWords_ = true; }); });
  words_.WordsGo.Connect([this] {
    if (!hasWords_) return;
    Change([this] {
      hasWords_ = false;
      rows_.reset();
    });
  });
}

const WordRows* ResultTable::Rows() {
  if (!hasWords_) return nullptr;
  if (!rows_) MakeRows();
  return &*rows_;
}

void ResultTable::MakeRows() {
  try {
    rows_.emplace(WordTable(words_.Counted(), words_.WordsRead), collation_);
    rows_->SetOrder(order_);
    if (!filterInForce_.text.empty()) rows_->SetFilter(filterInForce_, expression_);
  } catch (...) {
    // It would fail whenever the table is painted.
    rows_.reset();
    hasWords_ = false;
    throw;
  }
}

std::optional<FilteredWords> ResultTable::Filtered() {
  const WordRows* rows = filterInForce_.text.empty() ? nullptr : Rows();
  if (rows == nullptr) return std::nullopt;
  return FilteredWords{filterInForce_, rows->Places()};
}

void ResultTable::SetOrder(RowOrder order) {
  if (order == order_) return;
  Change([&] {
    order_ = order;
    if (rows_) rows_->SetOrder(order);
  });
}

void ResultTable::TellFaultAgain() {
  if (fault_.empty()) return;
  const auto read = readExpression_(filter_.text);
  if (const auto* fault = std::get_if<ExpressionFault>(&read)) fault_ = fault->description;
}

void ResultTable::SetFilter(RowFilter filter) {
  if (filter.kind != FilterKind::kExpression) filter.text = std::string(TrimTyped(filter.text));
  if (filter == filter_) return;
  filter_ = filter;
  fault_.clear();
  Matcher expression;
  if (filter.kind == FilterKind::kExpression && !filter.text.empty()) {
    auto read = readExpression_(filter.text);
    if (const auto* fault = std::get_if<ExpressionFault>(&read)) {
      fault_ = fault->description;
      return;
    }
    expression = std::get<Matcher>(std::move(read));
  }
  Change([&] {
    filterInForce_ = filter;
    expression_ = std::move(expression);
    if (rows_) rows_->SetFilter(filterInForce_, expression_);
  });
}

}  // namespace quillomat
