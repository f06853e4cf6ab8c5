#include "engine/char_class.h"

#include <algorithm>

#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr std::string_view kNeverFirst = "-'.,()";

bool IsAsciiWordChar(char ch, bool allowDigits, std::string_view extras) {
  const bool letter = (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z');
  const bool digit = ch >= '0' && ch <= '9';
  return letter || (digit && allowDigits) || extras.find(ch) != std::string_view::npos;
}

}  // namespace

CharClass::CharClass(bool allowDigits, std::string_view extras, LetterRule letters)
    : letters_(letters), wideKinds_(CodePointTraits::kLetter) {
  if (allowDigits) wideKinds_ |= CodePointTraits::kDigit;
  for (std::size_t code = 0; code < kinds_.size(); ++code) {
    const char ch = static_cast<char>(code);
    const bool mayLead = kNeverFirst.find(ch) == std::string_view::npos;
    std::uint8_t kind = IsAsciiWordChar(ch, allowDigits, extras) ? kInside : 0;
    if (mayLead && IsAsciiWordChar(ch, false, extras)) kind |= kStart;
    kinds_[code] = kind;
  }
}

std::size_t CharClass::RunBytes(std::string_view text, std::size_t position) const {
  if (letters_ == LetterRule::kAll) return WideRunBytes(text, position);
  const std::size_t start = position;
  for (std::size_t count = 0; count < kMaxWordRun && position < text.size(); ++count) {
    const std::size_t bytes = WordCharBytes(text, position);
    if (bytes == 0) break;
    position += bytes;
  }
  return position - start;
}

std::size_t CharClass::WideRunBytes(std::string_view text, std::size_t position) const {
  const UnicodeTraits& traits = UnicodeTraits::Get();
  const std::size_t start = position;
  bool behindLetter = false;
  for (std::size_t count = 0; count < kMaxWordRun && position < text.size(); ++count) {
    const Utf8Character character = CharacterAt(text, position);
    const std::uint8_t kinds = traits.Of(character.codePoint).kinds;
    const bool mark = (kinds & CodePointTraits::kMark) != 0;
    if (mark ? !behindLetter : WordCharBytes(text, position) == 0) break;
    behindLetter = mark || (kinds & CodePointTraits::kLetter) != 0;
    position += character.bytes;
  }
  return position - start;
}

bool IsWordChar(std::string_view ch, bool allowDigits, std::string_view extras) {
  return !ch.empty() && CharClass(allowDigits, extras).WordCharBytes(ch, 0) != 0;
}

std::size_t CountWordChars(std::string_view text, std::size_t start, bool allowDigits,
                           std::string_view extras, LetterRule letters) {
  const CharClass charClass(allowDigits, extras, letters);
  const std::size_t position = BytesOfFirst(text, start - 1);
  return CharacterCount(text.substr(position, charClass.RunBytes(text, position)));
}

bool ContainsDigit(std::string_view text) {
  const UnicodeTraits& traits = UnicodeTraits::Get();
  for (std::size_t position = 0; position < text.size();) {
    const Utf8Character character = CharacterAt(text, position);
    if (traits.Is(character.codePoint, CodePointTraits::kDigit)) return true;
    position += character.bytes;
  }
  return false;
}

bool ContainsAnyOf(std::string_view text, std::string_view set) {
  return text.find_first_of(set) != std::string_view::npos;
}

}  // namespace quillomat
