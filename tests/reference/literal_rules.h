// The rules that look at nothing but their arguments: which characters make up words, how a word
// that has been cut is shortened or dropped, how accents are folded, and the tests of the word
// filters.
#pragma once

#include <cstddef>

#include "reference/literal_text.h"

namespace quillomat::reference {

/// `ch` is a string of one character, or empty.
[[nodiscard]] bool IsWordChar(const Characters& ch, bool allowDigits, const Characters& extras);

/// How many word characters follow each other from `start` on; never more than 65,000.
[[nodiscard]] std::size_t CountWordChars(const Characters& text, std::size_t start,
                                         bool allowDigits, const Characters& extras);

[[nodiscard]] bool ContainsAnyOf(const Characters& text, const Characters& set);

[[nodiscard]] Characters TrimTrailingChars(const Characters& text, const Characters& set);

/// Takes `suffix` off the end of `text` when it stands there, once.
void RemoveSuffix(Characters& text, const Characters& suffix);

/// Whether the first character of `ch` is a vowel; with `lowerOnly`, a lower-case one.
[[nodiscard]] bool IsVowel(const Characters& ch, bool lowerOnly);

/// Whether the word is the end of a stem such as "isn" or "couldn". An empty word is.
[[nodiscard]] bool IsContractionStem(const Characters& word);

/// "cats" loses its "s"; "glass", "gas", "physics" and "John's" do not.
[[nodiscard]] Characters ApplyFinalSRule(const Characters& word);

/// Empty for what is left behind an apostrophe that has cut a word ("s", "t") and for the stem
/// before.
[[nodiscard]] Characters ApplyApostropheFragmentRule(const Characters& word);

[[nodiscard]] Characters TransliterateGerman(const Characters& text);
[[nodiscard]] Characters RemoveAccents(const Characters& text);

/// TransliterateGerman, then RemoveAccents.
[[nodiscard]] Characters FoldAccents(const Characters& text);

/// The key under which the store keeps a word: accents folded, then lower case.
[[nodiscard]] Characters SortKeyOf(const Characters& word);

[[nodiscard]] bool IsRepetition(const Characters& word);
[[nodiscard]] bool IsRomanNumeral(const Characters& word, bool belowXL);
[[nodiscard]] bool LacksVowel(const Characters& word, bool withY);

}  // namespace quillomat::reference
