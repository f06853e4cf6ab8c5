#include "engine/word_rules.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "base/letter_case.h"
#include "base/utf8.h"
#include "engine/fold_accents.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

constexpr std::string_view kContractionStems =
    "aren couldn didn doesn hadn hasn isn shouldn wasn weren wouldn ";
constexpr std::size_t kLongestStem = 7;

constexpr std::array<std::string_view, 8> kRomanExceptions = {"dim", "mid",   "vim",   "cid",
                                                              "lid", "livid", "civil", "dill"};

/// A bit for each of the small letters of ASCII.
constexpr std::uint32_t kVowels = [] {
  std::uint32_t vowels = 0;
  for (const char vowel : std::string_view("aeiou"))
    vowels |= 1U << static_cast<unsigned>(vowel - 'a');
  return vowels;
}();

/// The small vowels of U+00E0-U+00FF: all letters but c with cedilla, eth, n with tilde, y and
/// thorn. Sharp s (U+00DF), the signs and the letters y are none.
bool IsSmallLatin1Vowel(char32_t codePoint) {
  if (codePoint < 0xE0 || codePoint > 0xFC) return false;
  return codePoint != 0xE7 && codePoint != 0xF0 && codePoint != 0xF1 && codePoint != 0xF7;
}

bool IsVowelCodePoint(char32_t codePoint, bool lowerOnly) {
  constexpr char32_t kToSmall = 0x20;
  if (codePoint < 0x80) {
    const char32_t small = lowerOnly ? codePoint : codePoint | kToSmall;
    return small >= 'a' && small <= 'z' && (kVowels >> (small - 'a') & 1U) != 0;
  }
  if (IsSmallLatin1Vowel(codePoint)) return true;
  return !lowerOnly && codePoint >= 0xC0 && codePoint <= 0xDC &&
         IsSmallLatin1Vowel(codePoint + kToSmall);
}

/// Whether a letter is of another script than Latin.
bool HasOtherLetters(std::string_view word) {
  const UnicodeTraits& traits = UnicodeTraits::Get();
  for (std::size_t position = 0; position < word.size();) {
    const Utf8Character character = CharacterAt(word, position);
    const std::uint8_t kinds = traits.Of(character.codePoint).kinds;
    if ((kinds & CodePointTraits::kLetter) != 0 && (kinds & CodePointTraits::kLatin) == 0) {
      return true;
    }
    position += character.bytes;
  }
  return false;
}

/// Of a character without its accents: a letter that is none of A-Z, as schwa or open e. Those that
/// the western rule knows, and eng, are known for consonants.
bool MayBeVowel(char32_t codePoint) {
  constexpr std::u32string_view kConsonants = U"\u00F0\u00FE\u014B";
  return codePoint >= 0x80 && kConsonants.find(codePoint) == std::u32string_view::npos &&
         UnicodeTraits::Get().Is(codePoint, CodePointTraits::kLetter);
}

/// A small one, of Latin letters; what stands for it may be two.
bool EndsWithVowelOfAnyAccent(std::string_view word) {
  std::string_view last = word;
  const UnicodeTraits& traits = UnicodeTraits::Get();
  while (traits.Is(CharacterAt(last, LastCharacterStart(last)).codePoint, CodePointTraits::kMark)) {
    last.remove_suffix(last.size() - LastCharacterStart(last));
  }
  const Utf8Character letter = CharacterAt(last, LastCharacterStart(last));
  const std::string folded = FoldAccentsOfAll(last.substr(LastCharacterStart(last)));
  const char32_t plain = CharacterAt(folded, LastCharacterStart(folded)).codePoint;
  const bool capital = traits.Of(letter.codePoint).toLower != 0;
  return !capital && (IsVowelCodePoint(plain, true) || MayBeVowel(plain));
}

/// What may be a vowel is taken for one: so are all letters of other scripts.
bool LacksVowelOfAll(std::string_view word, bool withY) {
  const std::string folded = FoldAccentsOfAll(word);
  for (std::size_t position = 0; position < folded.size();) {
    const Utf8Character character = CharacterAt(folded, position);
    if (IsVowelCodePoint(character.codePoint, false)) return false;
    if (withY && character.codePoint == 'y') return false;
    if (MayBeVowel(character.codePoint)) return false;
    position += character.bytes;
  }
  return true;
}

}  // namespace

std::string_view TrimTrailingChars(std::string_view text, std::string_view set) {
  return text.substr(0, text.find_last_not_of(set) + 1);
}

bool IsVowel(std::string_view ch, bool lowerOnly) {
  return !ch.empty() && IsVowelCodePoint(CharacterAt(ch, 0).codePoint, lowerOnly);
}

bool IsContractionStem(std::string_view word) {
  // All stems end in n, so most words need no search.
  const bool mayBeStem = !word.empty() && (word.back() == 'n' || word.back() == 'N');
  if (word.size() > kLongestStem || !mayBeStem) return word.empty();
  return kContractionStems.find(LowerCase(word) + ' ') != std::string_view::npos;
}

std::string_view DropFinalS(std::string_view word, LetterRule letters) {
  if (!word.ends_with('s') || word.ends_with("ss") || word.ends_with("'s")) return word;
  if (LowerCase(word) == "maths") return word;
  const std::string_view before = word.substr(0, word.size() - 1);
  const std::size_t secondToLast = LastCharacterStart(before);
  if (secondToLast == 0) return word;  // at most two characters
  if (EqualIgnoringCase(word.substr(word.size() >= 3 ? word.size() - 3 : 0), "ics")) return word;
  if (letters == LetterRule::kAll) {
    return HasOtherLetters(word) || EndsWithVowelOfAnyAccent(before) ? word : before;
  }
  if (IsVowel(before.substr(secondToLast), true)) return word;
  return before;
}

bool IsApostropheFragment(std::string_view word) {
  if (word.size() == 1 && std::string_view("sStT").find(word[0]) != std::string_view::npos) {
    return true;
  }
  return IsContractionStem(word);
}

bool IsRepetition(std::string_view word) {
  if (word.empty()) return false;
  const std::size_t bytes = CharacterAt(word, 0).bytes;
  const std::string_view first = word.substr(0, bytes);
  for (std::size_t position = 0; position < word.size(); position += bytes) {
    if (word.substr(position, bytes) != first) return false;
  }
  return true;
}

bool IsRomanNumeral(std::string_view word, bool belowXL) {
  const std::string_view numerals = belowXL ? "ivxIVX" : "ivxlcdmIVXLCDM";
  const auto isNumeral = [numerals](char ch) {
    return numerals.find(ch) != std::string_view::npos;
  };
  if (!std::ranges::all_of(word, isNumeral)) return false;
  return belowXL || std::ranges::find(kRomanExceptions, LowerCase(word)) == kRomanExceptions.end();
}

bool LacksVowel(std::string_view word, bool withY, LetterRule letters) {
  if (letters == LetterRule::kAll) return LacksVowelOfAll(word, withY);
  for (std::size_t position = 0; position < word.size();) {
    const Utf8Character character = CharacterAt(word, position);
    if (IsVowelCodePoint(character.codePoint, false)) return false;
    if (withY && (character.codePoint == 'y' || character.codePoint == 'Y')) return false;
    position += character.bytes;
  }
  return true;
}

}  // namespace quillomat
