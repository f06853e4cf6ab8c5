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

CharClass::CharClass(bool allowDigits, std::string_view extras) {
  for (std::size_t code = 0; code < kinds_.size(); ++code) {
    const char ch = static_cast<char>(code);
    const bool mayLead = kNeverFirst.find(ch) == std::string_view::npos;
    std::uint8_t kind = IsAsciiWordChar(ch, allowDigits, extras) ? kInside : 0;
    if (mayLead && IsAsciiWordChar(ch, false, extras)) kind |= kStart;
    kinds_[code] = kind;
  }
}

bool IsWordChar(std::string_view ch, bool allowDigits, std::string_view extras) {
  return !ch.empty() && CharClass(allowDigits, extras).WordCharBytes(ch, 0) != 0;
}

std::size_t CountWordChars(std::string_view text, std::size_t start, bool allowDigits,
                           std::string_view extras) {
  const CharClass charClass(allowDigits, extras);
  std::size_t position = BytesOfFirst(text, start - 1);
  std::size_t count = 0;
  while (count < kMaxWordRun && position < text.size()) {
    const std::size_t bytes = charClass.WordCharBytes(text, position);
    if (bytes == 0) break;
    position += bytes;
    ++count;
  }
  return count;
}

bool ContainsAnyOf(std::string_view text, std::string_view set) {
  return text.find_first_of(set) != std::string_view::npos;
}

}  // namespace quillomat
