#include "base/letter_case.h"

#include <cstddef>
#include <utility>

namespace quillomat {
namespace {

/// The lower-case pair of bytes of a two-byte UTF-8 character.
std::pair<unsigned char, unsigned char> LowerTwoBytes(unsigned char lead, unsigned char next) {
  constexpr unsigned char kMultiplicationSign = 0x97;
  if (lead == 0xC3 && next >= 0x80 && next <= 0x9E && next != kMultiplicationSign) {
    return {lead, static_cast<unsigned char>(next + 0x20)};
  }
  if (lead == 0xC5) {
    switch (next) {
      case 0x92:  // OE ligature
      case 0xA0:  // S with caron
      case 0xBD:  // Z with caron
        return {lead, static_cast<unsigned char>(next + 1)};
      case 0xB8:  // Y with diaeresis, whose small letter is U+00FF
        return {0xC3, 0xBF};
      default:
        break;
    }
  }
  return {lead, next};
}

}  // namespace

void MakeLowerCase(std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte >= 'A' && byte <= 'Z') {
      text[i] = static_cast<char>(byte + 0x20);
    } else if ((byte == 0xC3 || byte == 0xC5) && i + 1 < text.size()) {
      const auto second = static_cast<unsigned char>(text[i + 1]);
      if (second < 0x80) continue;  // not well-formed: a character of its own follows
      const auto [lead, next] = LowerTwoBytes(byte, second);
      text[i] = static_cast<char>(lead);
      text[i + 1] = static_cast<char>(next);
      ++i;
    }
  }
}

std::string LowerCase(std::string_view text) {
  std::string result(text);
  MakeLowerCase(result);
  return result;
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
  return left.size() == right.size() && LowerCase(left) == LowerCase(right);
}

}  // namespace quillomat
