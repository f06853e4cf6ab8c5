// The rules about single words: how a cut word is trimmed and shortened, and the tests that the
// filters use. All are plain functions of the word.
#pragma once

#include <string>
#include <string_view>

#include "engine/letter_rule.h"

namespace quillomat {

/// `text` without the trailing characters that occur in `set` (ASCII).
[[nodiscard]] std::string_view TrimTrailingChars(std::string_view text, std::string_view set);

/// Looks at the first character of `ch`. With `lowerOnly` only lower-case vowels count. Y is no
/// vowel.
[[nodiscard]] bool IsVowel(std::string_view ch, bool lowerOnly);

/// Whether the lower-cased word ends one of the stems that contractions leave behind ("isn",
/// "couldn"). Any ending of a stem will do: "n", "dn", "en" and "ren" are stems too.
[[nodiscard]] bool IsContractionStem(std::string_view word);

/// The word under the rule "drop a final s": at most its last character is dropped. Of all letters
/// the rule asks Latin ones only: it leaves a word with a letter of another script alone, and an s
/// behind a letter that may be a vowel (see LacksVowel).
[[nodiscard]] std::string_view DropFinalS(std::string_view word,
                                          LetterRule letters = LetterRule::kWestern);

/// Whether the word is what remains of a contraction or a possessive cut at its apostrophe.
[[nodiscard]] bool IsApostropheFragment(std::string_view word);

/// Whether the word consists of one character repeated; letter case counts. False for an empty
/// word.
[[nodiscard]] bool IsRepetition(std::string_view word);

/// Whether only the letters of Roman numerals occur (I, V and X with `belowXL`); their order is not
/// looked at. The general form knows eight English words that look like numerals. No letter of
/// another script is one.
[[nodiscard]] bool IsRomanNumeral(std::string_view word, bool belowXL);

/// Whether the word has no vowel; with `withY`, and no y either. An empty word lacks a vowel. Of
/// all letters, a vowel is one with any accents, and only words of Latin letters lack one; a letter
/// that is none of A-Z without accents may be a vowel, but for eth, thorn and eng.
[[nodiscard]] bool LacksVowel(std::string_view word, bool withY,
                              LetterRule letters = LetterRule::kWestern);

}  // namespace quillomat
