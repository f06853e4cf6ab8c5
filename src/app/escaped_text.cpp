#include "app/escaped_text.h"

#include <charconv>
#include <cstddef>

#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr std::size_t kDigits = 2;

void AppendEscaped(std::string& escaped, char byte) {
  constexpr std::string_view kHexDigits = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  escaped += '%';
  escaped += kHexDigits[value / kHexDigits.size()];
  escaped += kHexDigits[value % kHexDigits.size()];
}

bool StandsForItself(char byte) {
  constexpr char kDelete = 0x7F;
  const bool control = static_cast<unsigned char>(byte) < static_cast<unsigned char>(' ');
  return byte != '%' && byte != kDelete && !control;
}

}  // namespace

std::string EscapedText(std::string_view text) {
  std::string escaped;
  while (!text.empty()) {
    const std::size_t wellFormed = WellFormedUtf8Bytes(text);
    for (const char byte : text.substr(0, wellFormed)) {
      if (StandsForItself(byte)) {
        escaped += byte;
      } else {
        AppendEscaped(escaped, byte);
      }
    }
    text.remove_prefix(wellFormed);
    if (text.empty()) break;
    AppendEscaped(escaped, text.front());
    text.remove_prefix(1);
  }
  return escaped;
}

std::optional<std::string> UnescapedText(std::string_view escaped) {
  std::string text;
  while (!escaped.empty()) {
    const std::size_t plain = escaped.substr(0, escaped.find('%')).size();
    text.append(escaped.substr(0, plain));
    escaped.remove_prefix(plain);
    if (escaped.empty()) break;
    const std::string_view digits = escaped.substr(1, kDigits);
    const char* const end = digits.data() + digits.size();
    unsigned char byte = 0;
    const auto [last, error] = std::from_chars(digits.data(), end, byte, 16);
    if (error != std::errc() || last != end || digits.size() != kDigits) return std::nullopt;
    text += static_cast<char>(byte);
    escaped.remove_prefix(1 + kDigits);
  }
  return text;
}

}  // namespace quillomat
