#include "reference/literal_rules.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace quillomat::reference {
namespace {

constexpr const char32_t* kVowels = U"AEIOUaeiouÀÁÂÃÄÅÆÈÉÊËÌÍÎÏÒÓÔÕÖØÙÚÛÜàáâãäåæèéêëìíîïòóôõöøùúûü";

constexpr const char32_t* kContractionStems =
    U"aren couldn didn doesn hadn hasn isn shouldn wasn weren wouldn ";

constexpr const char32_t* kGermanSource = U"ŒÄÆÖÜäæöüß";
constexpr const char32_t* kGermanResult = U"OeAeAeOeUeaeaeoeuess";

constexpr const char32_t* kAccentSource =
    U"ŠŸÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝšÿàáâãäåçèéêëìíîïñòóôõöøùúûüý";
constexpr const char32_t* kAccentResult =
    U"SYAAAAAACEEEEIIIIDNOOOOOOUUUUYsyaaaaaaceeeeiiiinoooooouuuuy";

bool Contains(const Characters& text, const Characters& wanted) {
  return InStr(1, text, wanted) > 0;
}

/// Replaces each character found in `source` by the `size` characters at its place in `result`.
Characters ReplaceByTable(const Characters& text, const Characters& source,
                          const Characters& result, std::size_t size) {
  Characters replaced;
  for (std::size_t i = 1; i <= text.size(); ++i) {
    const Characters ch = CharacterAt(text, i);
    const std::size_t place = InStr(1, source, ch);
    if (place > 0) {
      replaced += Mid(result, (place - 1) * size + 1, size);
    } else {
      replaced += ch;
    }
  }
  return replaced;
}

Characters WithoutEvery(const Characters& text, const Characters& set) {
  Characters rest;
  for (std::size_t i = 1; i <= text.size(); ++i) {
    const Characters ch = CharacterAt(text, i);
    if (!Contains(set, ch)) rest += ch;
  }
  return rest;
}

}  // namespace

bool IsWordChar(const Characters& ch, bool allowDigits, const Characters& extras) {
  if (ch.empty()) return false;
  const auto code = static_cast<std::uint32_t>(ch.front());
  if (code < 128) {
    if (code >= 65 && code <= 90) return true;
    if (code >= 97 && code <= 122) return true;
    if (code >= 48 && code <= 57 && allowDigits) return true;
    return Contains(extras, ch);
  }
  if (code >= 192 && code <= 214) return true;
  if (code >= 216 && code <= 246) return true;
  return code >= 248 && code <= 255;
}

std::size_t CountWordChars(const Characters& text, std::size_t start, bool allowDigits,
                           const Characters& extras) {
  constexpr std::size_t kMost = 65'000;
  std::size_t count = 0;
  while (count < kMost && start + count <= text.size() &&
         IsWordChar(CharacterAt(text, start + count), allowDigits, extras)) {
    count += 1;
  }
  return count;
}

bool ContainsAnyOf(const Characters& text, const Characters& set) {
  for (std::size_t i = 1; i <= set.size(); ++i) {
    if (Contains(text, CharacterAt(set, i))) return true;
  }
  return false;
}

Characters TrimTrailingChars(const Characters& text, const Characters& set) {
  Characters rest = text;
  while (!rest.empty() && Contains(set, Right(rest, 1))) rest.pop_back();
  return rest;
}

void RemoveSuffix(Characters& text, const Characters& suffix) {
  if (text.size() < suffix.size()) return;
  if (Right(text, suffix.size()) == suffix) text.resize(text.size() - suffix.size());
}

bool IsVowel(const Characters& ch, bool lowerOnly) {
  if (ch.empty()) return false;
  Characters vowels = kVowels;
  if (lowerOnly) vowels = LowerCase(vowels);
  return Contains(vowels, CharacterAt(ch, 1));
}

bool IsContractionStem(const Characters& word) {
  return Contains(kContractionStems, LowerCase(word) + U" ");
}

Characters ApplyFinalSRule(const Characters& word) {
  if (LowerCase(Right(word, 3)) == U"ics") return word;
  if (LowerCase(word) == U"maths") return word;
  if (word.size() <= 2) return word;
  if (Right(word, 1) != U"s") return word;
  if (Right(word, 2) == U"ss") return word;
  if (Right(word, 2) == U"'s") return word;
  if (IsVowel(CharacterAt(word, word.size() - 1), true)) return word;
  Characters shortened = word;
  RemoveSuffix(shortened, U"s");
  return shortened;
}

Characters ApplyApostropheFragmentRule(const Characters& word) {
  const Characters lower = LowerCase(word);
  if (lower == U"s" || lower == U"t") return U"";
  if (IsContractionStem(word)) return U"";
  return word;
}

Characters TransliterateGerman(const Characters& text) {
  return ReplaceByTable(text, kGermanSource, kGermanResult, 2);
}

Characters RemoveAccents(const Characters& text) {
  return ReplaceByTable(text, kAccentSource, kAccentResult, 1);
}

Characters FoldAccents(const Characters& text) {
  return RemoveAccents(TransliterateGerman(text));
}

Characters SortKeyOf(const Characters& word) {
  return LowerCase(FoldAccents(word));
}

bool IsRepetition(const Characters& word) {
  if (word.empty()) return false;
  return WithoutEvery(word, CharacterAt(word, 1)).empty();
}

bool IsRomanNumeral(const Characters& word, bool belowXL) {
  const Characters upper = UpperCase(word);
  if (belowXL) return WithoutEvery(upper, U"IVX").empty();
  static const std::array<Characters, 8> kExceptions = {U"DIM", U"MID",   U"VIM",   U"CID",
                                                        U"LID", U"LIVID", U"CIVIL", U"DILL"};
  if (std::find(kExceptions.begin(), kExceptions.end(), upper) != kExceptions.end()) return false;
  return WithoutEvery(upper, U"IVXLCDM").empty();
}

bool LacksVowel(const Characters& word, bool withY) {
  Characters set = kVowels;
  if (withY) set += U"Yy";
  return !ContainsAnyOf(word, set);
}

}  // namespace quillomat::reference
