#include "base/terminal_text.h"

#include <algorithm>
#include <cstddef>

#include "base/direction_marks.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr char32_t kDelete = 0x7F;
constexpr char32_t kFirstAfterControls = 0xA0;

void AppendHex(std::string& text, char32_t number, int digits) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text.push_back(kDigits[(number >> static_cast<unsigned>(shift)) & 0xFU]);
  }
}

bool MustBeEscaped(char32_t ch, char32_t next) {
  if (ch == '\n' || ch == '\t' || (ch == '\r' && next == '\n')) return false;
  return ch < ' ' || (ch >= kDelete && ch < kFirstAfterControls) || IsDirectionMark(ch);
}

bool IsPlain(char ch) {
  return (ch >= ' ' && ch < static_cast<char>(kDelete)) || ch == '\n' || ch == '\t';
}

}  // namespace

std::string EscapedForTerminal(std::string_view text) {
  if (std::all_of(text.begin(), text.end(), IsPlain)) return std::string(text);
  std::string escaped;
  for (std::size_t at = 0; at < text.size();) {
    const auto [ch, bytes] = CharacterAt(text, at);
    const char32_t next =
        at + 1 < text.size() ? char32_t{static_cast<unsigned char>(text[at + 1])} : 0;
    const bool stray = bytes == 1 && ch > kDelete;
    if (stray || (MustBeEscaped(ch, next) && ch <= kDelete)) {
      AppendHex(escaped.append("\\x"), ch, 2);
    } else if (MustBeEscaped(ch, next)) {
      AppendHex(escaped.append("\\u"), ch, 4);
    } else {
      escaped.append(text.substr(at, bytes));
    }
    at += bytes;
  }
  return escaped;
}

}  // namespace quillomat
