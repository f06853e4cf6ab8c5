#include "sources/text_test.h"

#include <algorithm>

#include "base/utf8.h"

namespace quillomat {
namespace {

bool IsControlCharacter(char ch) {
  const auto byte = static_cast<unsigned char>(ch);
  return byte < 32 && ch != '\t' && ch != '\n' && ch != '\r';
}

}  // namespace

bool IsText(std::string_view text, std::size_t maximum) {
  const std::string_view head = text.substr(0, BytesOfFirst(text, maximum));
  return std::none_of(head.begin(), head.end(), IsControlCharacter);
}

}  // namespace quillomat
