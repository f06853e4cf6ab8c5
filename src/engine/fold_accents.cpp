#include "engine/fold_accents.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/letter_case.h"
#include "base/utf8.h"
#include "engine/normal_text.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

/// The replacement of a character, or an empty text when it stays. The German letters come first,
/// so that the accent rows never see them.
std::string_view FoldedLatin1(char32_t codePoint) {
  // U+00C0 to U+00FF in order; "" keeps the character (eth, thorn, the two signs).
  static constexpr std::string_view kFolded[] = {
      "A", "A", "A", "A", "Ae", "A", "Ae", "C", "E", "E", "E", "E", "I",  "I", "I", "I",
      "D", "N", "O", "O", "O",  "O", "Oe", "",  "O", "U", "U", "U", "Ue", "Y", "",  "ss",
      "a", "a", "a", "a", "ae", "a", "ae", "c", "e", "e", "e", "e", "i",  "i", "i", "i",
      "",  "n", "o", "o", "o",  "o", "oe", "",  "o", "u", "u", "u", "ue", "y", "",  "y"};
  static_assert(std::size(kFolded) == 64);
  return codePoint >= 0xC0 && codePoint <= 0xFF ? kFolded[codePoint - 0xC0] : std::string_view();
}

std::string_view FoldedCharacter(char32_t codePoint) {
  switch (codePoint) {
    case 0x152:  // the capital OE ligature; the small one stays
      return "Oe";
    case 0x160:
      return "S";
    case 0x161:
      return "s";
    case 0x178:
      return "Y";
    default:
      return FoldedLatin1(codePoint);
  }
}

/// Of small letters that consist of no others, and of those that German writes with two. Empty for
/// all else.
std::string_view FoldedSmallLetter(char32_t codePoint) {
  switch (codePoint) {
    case 0xE4:
    case 0xE6:
      return "ae";
    case 0xF6:
    case 0x153:
      return "oe";
    case 0xFC:
      return "ue";
    case 0xDF:
      return "ss";
    case 0xF8:
      return "o";
    case 0x111:
      return "d";
    case 0x127:
      return "h";
    case 0x131:
      return "i";
    case 0x142:
      return "l";
    case 0x167:
      return "t";
    default:
      return {};
  }
}

char32_t FoldedCase(char32_t codePoint) {
  const auto self = static_cast<std::int32_t>(codePoint);
  return static_cast<char32_t>(self + UnicodeTraits::Get().Of(codePoint).toFolded);
}

/// Appends a Latin or Greek letter of folded case without its accents.
void AppendUnaccented(char32_t codePoint, std::string& result) {
  std::string_view folded = FoldedSmallLetter(codePoint);
  if (folded.empty() && UnicodeTraits::Get().Is(codePoint, CodePointTraits::kComposed)) {
    std::vector<std::int32_t> parts;
    AppendDecomposed(codePoint, parts);
    codePoint = FoldedCase(static_cast<char32_t>(parts.front()));
    folded = FoldedSmallLetter(codePoint);
  }
  if (folded.empty()) {
    AppendCharacter(result, codePoint);
  } else {
    result.append(folded);
  }
}

/// Where the first character stands that is another in folded case, or the size of the word.
std::size_t FirstUnfolded(std::string_view word) {
  for (std::size_t position = 0; position < word.size();) {
    const Utf8Character character = CharacterAt(word, position);
    if (FoldedCase(character.codePoint) != character.codePoint) return position;
    position += character.bytes;
  }
  return word.size();
}

/// For all letters, with the accents. The word is in normal form; most are in folded case, too.
/// Points into `word` or into `scratch`.
std::string_view FoldCaseOfAll(std::string_view word, std::string& scratch) {
  std::size_t position = FirstUnfolded(word);
  if (position == word.size()) return word;
  std::string folded(word.substr(0, position));
  while (position < word.size()) {
    const Utf8Character character = CharacterAt(word, position);
    AppendCharacter(folded, FoldedCase(character.codePoint));
    position += character.bytes;
  }
  if (NormalForm(folded, DottedCapitalI::kKept, scratch).data() == folded.data()) {
    scratch = std::move(folded);
  }
  return scratch;
}

bool IsItsOwnKey(std::string_view word) {
  return std::all_of(word.begin(), word.end(), [](char ch) {
    return static_cast<unsigned char>(ch) < 0x80 && (ch < 'A' || ch > 'Z');
  });
}

}  // namespace

std::string FoldAccents(std::string_view text) {
  if (IsAscii(text)) return std::string(text);
  std::string result;
  result.reserve(text.size() + 4);
  for (std::size_t position = 0; position < text.size();) {
    const Utf8Character character = CharacterAt(text, position);
    const std::string_view folded = FoldedCharacter(character.codePoint);
    result.append(folded.empty() ? text.substr(position, character.bytes) : folded);
    position += character.bytes;
  }
  return result;
}

std::string FoldAccentsOfAll(std::string_view word) {
  const UnicodeTraits& traits = UnicodeTraits::Get();
  std::string result;
  result.reserve(word.size() + 4);
  bool dropsMarks = false;
  for (std::size_t position = 0; position < word.size();) {
    const Utf8Character character = CharacterAt(word, position);
    position += character.bytes;
    const std::uint8_t kinds = traits.Of(character.codePoint).kinds;
    const bool mark = (kinds & CodePointTraits::kMark) != 0;
    if (mark && dropsMarks) continue;
    const char32_t folded = FoldedCase(character.codePoint);
    if (!mark) dropsMarks = (kinds & CodePointTraits::kLatinOrGreek) != 0;
    if (dropsMarks) {
      AppendUnaccented(folded, result);
    } else {
      AppendCharacter(result, folded);
    }
  }
  return result;
}

std::string_view SortKeyOf(std::string_view word, KeyRule rule, std::string& scratch) {
  if (IsItsOwnKey(word)) return word;
  if (rule.letters == LetterRule::kAll) {
    if (rule.keepAccents) return FoldCaseOfAll(word, scratch);
    scratch = FoldAccentsOfAll(word);
  } else {
    scratch = rule.keepAccents ? LowerCase(word) : SortKeyOf(word);
  }
  return scratch;
}

std::string SortKeyOf(std::string_view word) {
  std::string key = FoldAccents(word);
  MakeLowerCase(key);
  return key;
}

std::string_view SortKeyOf(std::string_view word, std::string& scratch) {
  if (IsItsOwnKey(word)) return word;
  scratch = SortKeyOf(word);
  return scratch;
}

}  // namespace quillomat
