// The rule for the letters of all languages, as far as it is another than the western one: the
// normal form of a text, letter case, what a word character is, and the key of a word. Written from
// the rule's words, with the library's slow functions for single characters and whole texts.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "reference/literal_text.h"

namespace quillomat::reference {

/// Normalization Form C.
[[nodiscard]] Characters Composed(const Characters& text);

/// The signs that stand for others replaced, the ones without meaning dropped, and composed.
[[nodiscard]] Characters NormalForm(const Characters& text);

/// Every character by the simple mapping.
[[nodiscard]] Characters LowerCaseOfAll(const Characters& text);

/// NormalForm, LowerCaseOfAll, Composed.
[[nodiscard]] Characters NormalLowerCase(const Characters& text);

[[nodiscard]] bool IsAnyLetter(char32_t character);
[[nodiscard]] bool IsAnyMark(char32_t character);
[[nodiscard]] bool IsAnyDigit(char32_t character);

/// How many characters of a word follow each other from `start` on; never more than 65,000.
[[nodiscard]] std::size_t CountWordCharsOfAll(const Characters& text, std::size_t start,
                                              bool allowDigits, const Characters& extras);

/// Where words begin in a run of letters of scripts without blanks: the numbers of their first
/// letters, all but that of the first word.
using WordFinder = std::function<std::vector<std::size_t>(const Characters& run)>;

/// Whether it is a letter of a script without blanks: Han, kana, Thai, Lao, Khmer, Burmese.
[[nodiscard]] bool IsUnspacedLetter(char32_t character);

/// A run of word characters cut where letters of such scripts meet others and where the finder says
/// so. What stands between others begins as words may begin; signs alone are left out.
[[nodiscard]] std::vector<Characters> CutRun(const Characters& run, bool allowDigits,
                                             const Characters& extras, const WordFinder& find);

/// Case folded, and without the accents of Latin and Greek letters.
[[nodiscard]] Characters FoldAccentsOfAll(const Characters& word);
/// Case folded, and composed.
[[nodiscard]] Characters FoldCaseOfAll(const Characters& word);

/// Of a letter, by the places of the script.
[[nodiscard]] bool IsLatin(char32_t letter);
[[nodiscard]] bool HasLatinLettersOnly(const Characters& word);
/// Of a letter without accents: one that is none of A-Z and not known for a consonant.
[[nodiscard]] bool MayBeVowel(char32_t letter);

/// The final-s rule, and the search for a vowel, for words of Latin letters. Where a letter may be
/// a vowel it is taken for one.
[[nodiscard]] Characters ApplyFinalSRuleOfAll(const Characters& word);
[[nodiscard]] bool LacksVowelOfAll(const Characters& word, bool withY);

}  // namespace quillomat::reference
