#include "reference/literal_letters.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <utf8proc.h>
#include <utility>

#include "reference/literal_rules.h"

namespace quillomat::reference {
namespace {

std::int32_t Number(char32_t character) {
  return static_cast<std::int32_t>(character);
}

/// What the library makes of a text.
Characters Mapped(const Characters& text, int how) {
  const std::string utf8 = ToUtf8(text);
  utf8proc_uint8_t* mapped = nullptr;
  const auto bytes = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(utf8.data()),
                                  static_cast<utf8proc_ssize_t>(utf8.size()), &mapped,
                                  static_cast<utf8proc_option_t>(how));
  Characters result =
      FromUtf8({reinterpret_cast<const char*>(mapped), static_cast<std::size_t>(bytes)});
  std::free(mapped);
  return result;
}

Characters Decomposed(char32_t character) {
  return Mapped({character}, UTF8PROC_DECOMPOSE | UTF8PROC_STABLE);
}

char32_t LowerCaseOfAll(char32_t character) {
  return static_cast<char32_t>(utf8proc_tolower(Number(character)));
}

/// Simple case folding; where Unicode has only a full one, of several characters, lower case.
char32_t FoldedCase(char32_t character) {
  const Characters folded = Mapped({character}, UTF8PROC_CASEFOLD);
  return folded.size() == 1 ? folded[0] : LowerCaseOfAll(character);
}

/// Of a letter, by the places of the two scripts; and the micro sign, which folds to one.
bool IsLatinOrGreek(char32_t letter) {
  constexpr std::array<std::pair<char32_t, char32_t>, 13> kBlocks = {{{0x0041, 0x02B8},
                                                                      {0x02E0, 0x02E4},
                                                                      {0x0370, 0x03E1},
                                                                      {0x03F0, 0x03FF},
                                                                      {0x1D00, 0x1FFF},
                                                                      {0x2071, 0x209C},
                                                                      {0x2132, 0x2132},
                                                                      {0x214E, 0x2184},
                                                                      {0x2C60, 0x2C7F},
                                                                      {0xA722, 0xA7FF},
                                                                      {0xAB30, 0xAB69},
                                                                      {0x10780, 0x107BA},
                                                                      {0x1DF00, 0x1DFFF}}};
  // Two letters of Cyrillic and an accent.
  constexpr std::array<char32_t, 3> kOthersAmongThem = {0x1D2B, 0x1D78, 0xA788};
  if (!IsAnyLetter(letter)) return false;
  for (const char32_t other : kOthersAmongThem) {
    if (letter == other) return false;
  }
  for (const auto& [first, last] : kBlocks) {
    if (letter >= first && letter <= last) return true;
  }
  return false;
}

/// German letters and those that consist of no others.
Characters WithoutItsStroke(char32_t small) {
  constexpr std::array<std::pair<char32_t, const char32_t*>, 12> kTable = {{{U'ä', U"ae"},
                                                                            {U'ö', U"oe"},
                                                                            {U'ü', U"ue"},
                                                                            {U'ß', U"ss"},
                                                                            {U'æ', U"ae"},
                                                                            {U'œ', U"oe"},
                                                                            {U'ø', U"o"},
                                                                            {U'ł', U"l"},
                                                                            {U'đ', U"d"},
                                                                            {U'ħ', U"h"},
                                                                            {U'ı', U"i"},
                                                                            {U'ŧ', U"t"}}};
  for (const auto& [letter, plain] : kTable) {
    if (letter == small) return plain;
  }
  return {};
}

Characters WithoutAccents(char32_t letter) {
  const char32_t folded = FoldedCase(letter);
  Characters plain = WithoutItsStroke(folded);
  if (!plain.empty()) return plain;
  const char32_t base = FoldedCase(Decomposed(folded)[0]);
  plain = WithoutItsStroke(base);
  return plain.empty() ? Characters{base} : plain;
}

bool IsWithout(char32_t character) {
  if (character == 0x00AD || character == 0xFEFF) return true;
  if (character == 0x200C || character == 0x200D) return true;
  const bool mark = character == 0x061C || character == 0x200E || character == 0x200F;
  return mark || (character >= 0x202A && character <= 0x202E) ||
         (character >= 0x2066 && character <= 0x2069);
}

/// Of ASCII: whether a word may hold it.
bool IsOfWords(char32_t character) {
  const bool letter =
      (character >= U'A' && character <= U'Z') || (character >= U'a' && character <= U'z');
  const bool digit = character >= U'0' && character <= U'9';
  return letter || digit ||
         std::u32string_view(U"-'_:\\/().,@").find(character) != Characters::npos;
}

Characters Replaced(char32_t character) {
  if (IsWithout(character)) return {};
  if (character >= 0xFF01 && character <= 0xFF5E) {
    const char32_t plain = character - 0xFF01 + U'!';
    return {IsOfWords(plain) ? plain : character};
  }
  switch (character) {
    case 0x2018:
    case 0x2019:
    case 0x02BC:
      return U"'";
    case 0x2010:
    case 0x2011:
      return U"-";
    case 0xFB00:
      return U"ff";
    case 0xFB01:
      return U"fi";
    case 0xFB02:
      return U"fl";
    case 0xFB03:
      return U"ffi";
    case 0xFB04:
      return U"ffl";
    case 0xFB05:
    case 0xFB06:
      return U"st";
    default:
      return {character};
  }
}

}  // namespace

Characters Composed(const Characters& text) {
  return Mapped(text, UTF8PROC_COMPOSE | UTF8PROC_STABLE);
}

Characters NormalForm(const Characters& text) {
  Characters replaced;
  for (const char32_t character : text) replaced += Replaced(character);
  return Composed(replaced);
}

Characters LowerCaseOfAll(const Characters& text) {
  Characters lower;
  for (const char32_t character : text) lower += LowerCaseOfAll(character);
  return lower;
}

Characters NormalLowerCase(const Characters& text) {
  return Composed(LowerCaseOfAll(NormalForm(text)));
}

bool IsAnyLetter(char32_t character) {
  const utf8proc_category_t category = utf8proc_category(Number(character));
  return category == UTF8PROC_CATEGORY_LU || category == UTF8PROC_CATEGORY_LL ||
         category == UTF8PROC_CATEGORY_LT || category == UTF8PROC_CATEGORY_LM ||
         category == UTF8PROC_CATEGORY_LO;
}

bool IsAnyMark(char32_t character) {
  const utf8proc_category_t category = utf8proc_category(Number(character));
  return category == UTF8PROC_CATEGORY_MN || category == UTF8PROC_CATEGORY_MC ||
         category == UTF8PROC_CATEGORY_ME;
}

bool IsAnyDigit(char32_t character) {
  return utf8proc_category(Number(character)) == UTF8PROC_CATEGORY_ND;
}

std::size_t CountWordCharsOfAll(const Characters& text, std::size_t start, bool allowDigits,
                                const Characters& extras) {
  constexpr std::size_t kMost = 65'000;
  std::size_t count = 0;
  bool behindLetter = false;
  while (count < kMost && start + count <= text.size()) {
    const Characters ch = CharacterAt(text, start + count);
    if (IsAnyMark(ch[0])) {
      if (!behindLetter) break;
    } else if (IsAnyLetter(ch[0])) {
      behindLetter = true;
    } else {
      const bool digit = allowDigits && IsAnyDigit(ch[0]);
      if (!digit && InStr(1, extras, ch) == 0) break;
      behindLetter = false;
    }
    count += 1;
  }
  return count;
}

bool IsUnspacedLetter(char32_t character) {
  constexpr std::array<std::pair<char32_t, char32_t>, 15> kBlocks = {{{0x0E00, 0x0E7F},
                                                                      {0x0E80, 0x0EFF},
                                                                      {0x1000, 0x109F},
                                                                      {0x1780, 0x17FF},
                                                                      {0x3000, 0x303F},
                                                                      {0x3040, 0x30FF},
                                                                      {0x31F0, 0x31FF},
                                                                      {0x3400, 0x4DBF},
                                                                      {0x4E00, 0x9FFF},
                                                                      {0xA9E0, 0xA9FF},
                                                                      {0xAA60, 0xAA7F},
                                                                      {0xF900, 0xFAFF},
                                                                      {0xFF66, 0xFF9F},
                                                                      {0x1AFF0, 0x1B16F},
                                                                      {0x20000, 0x3FFFF}}};
  if (!IsAnyLetter(character)) return false;
  for (const auto& [first, last] : kBlocks) {
    if (character >= first && character <= last) return true;
  }
  return false;
}

std::vector<Characters> CutRun(const Characters& run, bool allowDigits, const Characters& extras,
                               const WordFinder& find) {
  // Stretches of such letters with their marks, and of all else.
  std::vector<Characters> stretches;
  bool unspaced = false;
  bool any = false;
  for (const char32_t character : run) {
    const bool joins = IsAnyMark(character) && !stretches.empty();
    if (!joins && (stretches.empty() || IsUnspacedLetter(character) != unspaced)) {
      unspaced = IsUnspacedLetter(character);
      stretches.emplace_back();
    }
    any = any || unspaced;
    stretches.back() += character;
  }
  if (!any) return {run};
  std::vector<Characters> parts;
  for (Characters stretch : stretches) {
    if (IsUnspacedLetter(stretch[0])) {
      std::size_t done = 0;
      for (const std::size_t place : find(stretch)) {
        if (IsAnyMark(CharacterAt(stretch, place)[0])) continue;
        parts.push_back(Mid(stretch, done + 1, place - 1 - done));
        done = place - 1;
      }
      parts.push_back(Mid(stretch, done + 1));
      continue;
    }
    const auto mayStart = [&](const Characters& ch) {
      return CountWordCharsOfAll(ch, 1, allowDigits, extras) == 1 && InStr(1, U"-'.,()", ch) == 0;
    };
    while (!stretch.empty() && !mayStart(CharacterAt(stretch, 1))) stretch = Mid(stretch, 2);
    bool signsAlone = true;
    for (const char32_t ch : stretch) {
      if (ch >= 128 || IsAnyLetter(ch) || IsAnyDigit(ch)) signsAlone = false;
    }
    if (!signsAlone) parts.push_back(stretch);
  }
  return parts;
}

Characters FoldAccentsOfAll(const Characters& word) {
  Characters folded;
  bool behindLatinOrGreek = false;
  for (const char32_t character : word) {
    if (IsAnyMark(character)) {
      if (!behindLatinOrGreek) folded += FoldedCase(character);
      continue;
    }
    behindLatinOrGreek = IsLatinOrGreek(character);
    folded += behindLatinOrGreek ? WithoutAccents(character) : Characters{FoldedCase(character)};
  }
  return folded;
}

Characters FoldCaseOfAll(const Characters& word) {
  Characters folded;
  for (const char32_t character : word) folded += FoldedCase(character);
  return NormalForm(folded);
}

bool IsLatin(char32_t letter) {
  constexpr std::array<std::pair<char32_t, char32_t>, 26> kBlocks = {
      {{0x0041, 0x005A},  {0x0061, 0x007A}, {0x00AA, 0x00AA}, {0x00BA, 0x00BA}, {0x00C0, 0x02B8},
       {0x02E0, 0x02E4},  {0x1D00, 0x1D25}, {0x1D2C, 0x1D5C}, {0x1D62, 0x1D65}, {0x1D6B, 0x1D77},
       {0x1D79, 0x1DBE},  {0x1E00, 0x1EFF}, {0x2071, 0x2071}, {0x207F, 0x209C}, {0x212A, 0x212B},
       {0x2132, 0x2132},  {0x214E, 0x2184}, {0x2C60, 0x2C7F}, {0xA722, 0xA787}, {0xA78B, 0xA7FF},
       {0xAB30, 0xAB64},  {0xAB66, 0xAB69}, {0xFB00, 0xFB06}, {0xFF21, 0xFF5A}, {0x10780, 0x107BA},
       {0x1DF00, 0x1DFFF}}};
  if (!IsAnyLetter(letter)) return false;
  for (const auto& [first, last] : kBlocks) {
    if (letter >= first && letter <= last) return true;
  }
  return false;
}

bool HasLatinLettersOnly(const Characters& word) {
  for (const char32_t character : word) {
    if (IsAnyLetter(character) && !IsLatin(character)) return false;
  }
  return true;
}

bool MayBeVowel(char32_t letter) {
  if (letter < 128 || !IsAnyLetter(letter)) return false;
  return letter != U'ð' && letter != U'þ' && letter != U'ŋ';
}

Characters ApplyFinalSRuleOfAll(const Characters& word) {
  if (!HasLatinLettersOnly(word)) return word;
  const Characters shortened = ApplyFinalSRule(word);
  if (shortened == word) return word;
  // The letter before the s, of which a vowel with any accent is a vowel.
  std::size_t place = shortened.size();
  while (IsAnyMark(CharacterAt(shortened, place)[0])) place -= 1;
  const Characters letter = CharacterAt(shortened, place);
  if (LowerCaseOfAll(letter) != letter) return shortened;
  const Characters plain = Right(FoldAccentsOfAll(letter), 1);
  return IsVowel(plain, true) || MayBeVowel(plain[0]) ? word : shortened;
}

bool LacksVowelOfAll(const Characters& word, bool withY) {
  if (!HasLatinLettersOnly(word)) return false;
  for (const char32_t character : FoldAccentsOfAll(word)) {
    if (MayBeVowel(character)) return false;
  }
  return LacksVowel(FoldAccentsOfAll(word), withY);
}

}  // namespace quillomat::reference
