#include "engine/fold_accents.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "base/letter_case.h"
#include "base/utf8.h"

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
