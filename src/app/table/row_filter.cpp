#include "app/table/row_filter.h"

#include <utility>

#include "base/letter_case.h"
#include "base/utf8.h"
#include "engine/fold_accents.h"
#include "sources/wildcard.h"

namespace quillomat {

WordMatcher::WordMatcher(const RowFilter& filter, Matcher expression)
    : kind_(filter.kind),
      folded_(SortKeyOf(filter.text)),
      lowered_(LowerCase(filter.text)),
      expression_(std::move(expression)) {}

bool WordMatcher::Matches(const WordRec& word) const {
  if (MatchesText(word.SortKey, folded_)) return true;
  const bool countsCharacters = kind_ == FilterKind::kPattern || kind_ == FilterKind::kExpression;
  return countsCharacters && !IsAscii(word.Word) && MatchesText(LowerCase(word.Word), lowered_);
}

bool WordMatcher::MatchesText(std::string_view text, std::string_view pattern) const {
  switch (kind_) {
    case FilterKind::kContain:
      return text.find(pattern) != std::string_view::npos;
    case FilterKind::kBeginWith:
      return text.starts_with(pattern);
    case FilterKind::kEndWith:
      return text.ends_with(pattern);
    case FilterKind::kAre:
      return text == pattern;
    case FilterKind::kPattern:
      return MatchesWildcard(text, pattern);
    case FilterKind::kExpression:
      return expression_(text);
  }
  return false;
}

}  // namespace quillomat
