// Accent folding: the key under which spellings of one word meet. German umlauts and the like
// become two letters ("Müller" and "Mueller" are the same word), other accented letters lose their
// accent. By the rule for all languages it is the same for all Latin and Greek letters; other
// scripts keep their marks.
#pragma once

#include <string>
#include <string_view>

#include "engine/letter_rule.h"

namespace quillomat {

/// The German transliteration first, then the removal of accents. Letter case is kept; a character
/// that neither table knows is copied.
[[nodiscard]] std::string FoldAccents(std::string_view text);

/// The sort key of a word: FoldAccents, then lower case. Words are the same when their keys are
/// equal; keys are ordered by their bytes, which is the order of their code points.
[[nodiscard]] std::string SortKeyOf(std::string_view word);

/// A word in normal form (normal_text.h) and folded case without the accents of Latin and Greek
/// letters, for the rule for all languages: "aepfel" of "\u00C4pfel", "lodz" of
/// "\u0141\u00F3d\u017A".
[[nodiscard]] std::string FoldAccentsOfAll(std::string_view word);

/// As SortKeyOf, by a rule; for all letters case is folded by Unicode's simple case folding. The
/// word is in normal form then. Points into `word` or into `scratch`.
[[nodiscard]] std::string_view SortKeyOf(std::string_view word, KeyRule rule, std::string& scratch);

/// As SortKeyOf, but without making a string where the word is its own key (lower-case ASCII): the
/// result points into `word` or into `scratch`.
[[nodiscard]] std::string_view SortKeyOf(std::string_view word, std::string& scratch);

}  // namespace quillomat
