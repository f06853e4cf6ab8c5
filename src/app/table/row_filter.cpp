#include "app/table/row_filter.h"

#include <utility>

#include "base/utf8.h"
#include "engine/fold_accents.h"
#include "engine/normal_text.h"
#include "sources/wildcard.h"

namespace quillomat {
namespace {

/// Signs of patterns and expressions stand for characters, and not for what these are folded to.
bool CountsCharacters(FilterKind kind) {
  return kind == FilterKind::kPattern || kind == FilterKind::kExpression;
}

}  // namespace

std::string KeyOfTyped(std::string_view text, KeyRule rule) {
  std::string normal;
  std::string scratch;
  if (rule.letters == LetterRule::kAll) text = NormalForm(text, DottedCapitalI::kLowered, normal);
  return std::string(SortKeyOf(text, rule, scratch));
}

WordMatcher::WordMatcher(const RowFilter& filter, Matcher expression, KeyRule rule)
    : kind_(filter.kind),
      lowerRule_{.letters = rule.letters, .keepAccents = true},
      hasTwoSpellings_(CountsCharacters(filter.kind) && !rule.keepAccents),
      folded_(KeyOfTyped(filter.text, rule)),
      lowered_(KeyOfTyped(filter.text, lowerRule_)),
      expression_(std::move(expression)) {}

bool WordMatcher::Matches(const WordRec& word) const {
  if (MatchesText(word.SortKey, folded_)) return true;
  if (!hasTwoSpellings_ || IsAscii(word.Word)) return false;
  std::string scratch;
  return MatchesText(SortKeyOf(word.Word, lowerRule_, scratch), lowered_);
}

bool WordMatcher::MatchesText(std::string_view text, std::string_view pattern) const {
  switch (kind_) {
    case FilterKind::kContains:
      return text.find(pattern) != std::string_view::npos;
    case FilterKind::kStartsWith:
      return text.starts_with(pattern);
    case FilterKind::kEndsWith:
      return text.ends_with(pattern);
    case FilterKind::kEquals:
      return text == pattern;
    case FilterKind::kPattern:
      return MatchesWildcard(text, pattern);
    case FilterKind::kExpression:
      return expression_(text);
  }
  return false;
}

}  // namespace quillomat
