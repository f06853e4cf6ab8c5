#include "app/table/row_filter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "base/utf8.h"
#include "engine/fold_accents.h"
#include "engine/normal_text.h"
#include "sources/wildcard.h"

namespace quillomat {
namespace {

/// White space of Unicode, and the mark that some programs put in front of what they copy.
constexpr std::array<std::pair<char32_t, char32_t>, 10> kBlanks = {{{U'\t', U'\r'},
                                                                    {U' ', U' '},
                                                                    {0x0085, 0x0085},
                                                                    {0x00A0, 0x00A0},
                                                                    {0x2000, 0x200A},
                                                                    {0x2028, 0x2029},
                                                                    {0x202F, 0x202F},
                                                                    {0x205F, 0x205F},
                                                                    {0x3000, 0x3000},
                                                                    {0xFEFF, 0xFEFF}}};

bool IsBlank(std::string_view text, std::size_t position) {
  const char32_t ch = CharacterAt(text, position).codePoint;
  return std::ranges::any_of(
      kBlanks, [ch](const auto& range) { return range.first <= ch && ch <= range.second; });
}

/// Signs of patterns and expressions stand for characters, and not for what these are folded to.
bool CountsCharacters(FilterKind kind) {
  return kind == FilterKind::kPattern || kind == FilterKind::kExpression;
}

}  // namespace

std::string_view TrimTyped(std::string_view text) {
  while (!text.empty() && IsBlank(text, 0)) text.remove_prefix(CharacterAt(text, 0).bytes);
  while (!text.empty() && IsBlank(text, LastCharacterStart(text))) {
    text = text.substr(0, LastCharacterStart(text));
  }
  return text;
}

std::string KeyOfTyped(std::string_view text, KeyRule rule) {
  text = TrimTyped(text);
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
