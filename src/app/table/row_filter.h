// Which words the table shows: what the user types above it, and how it is meant.
//
// Letter case and accents count as little as they do for the list, which goes by a rule of its own:
// where it takes "Müller" for "mueller", "mull" begins it not, but "muel" and "Mül" do. In a
// pattern and in an expression a word is looked at in both spellings, so that "m?ller" finds it,
// too.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "engine/letter_rule.h"
#include "engine/word_store.h"

namespace quillomat {

/// In the order in which the user is offered them.
enum class FilterKind : std::uint8_t {
  kContains,
  kStartsWith,
  kEndsWith,
  kEquals,
  /// "?" stands for one character, "*" for any run of them.
  kPattern,
  /// It may match anywhere in a word.
  kExpression,
};

struct RowFilter {
  FilterKind kind = FilterKind::kContains;
  /// "" for all words.
  std::string text;

  [[nodiscard]] bool operator==(const RowFilter&) const = default;
};

/// The words that a filter shows, by their alphabetical places in the store.
struct FilteredWords {
  RowFilter filter;
  std::vector<std::int32_t> places;
};

/// Whether an expression matches a text in UTF-8, in any letter case. Only one thread may call it
/// at a time: each works with a copy of its own.
using Matcher = std::function<bool(std::string_view text)>;

/// What is wrong with an expression, for the user.
struct ExpressionFault {
  std::string description;
};

/// Understands a regular expression; a face brings it along with its toolkit.
using ExpressionReader =
    std::function<std::variant<Matcher, ExpressionFault>(std::string_view expression)>;

/// What is typed, without the blanks, tabs and line ends of any kind at its ends: who copies a word
/// from a cell or a line often copies them along.
[[nodiscard]] std::string_view TrimTyped(std::string_view text);

/// The same, as a list of that rule folds words.
[[nodiscard]] std::string KeyOfTyped(std::string_view text, KeyRule rule);

/// A filter made ready to look at many words.
class WordMatcher {
 public:
  /// `rule` is that of the words. `expression` is called for a filter of that kind only.
  WordMatcher(const RowFilter& filter, Matcher expression, KeyRule rule);

  /// Each thread works with a copy of its own.
  [[nodiscard]] bool Matches(const WordRec& word) const;

 private:
  [[nodiscard]] bool MatchesText(std::string_view text, std::string_view pattern) const;

  FilterKind kind_;
  /// By which accents stay.
  KeyRule lowerRule_;
  /// A word may have a spelling besides its key.
  bool hasTwoSpellings_;
  /// As the list folds words, and in lower case alone.
  std::string folded_;
  std::string lowered_;
  Matcher expression_;
};

}  // namespace quillomat
