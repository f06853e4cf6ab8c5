#include "base/text_helpers.h"

#include "base/utf8.h"

namespace quillomat {

std::string_view TrimRightBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : TrimRightBlanks(text.substr(first));
}

/// Counts in bytes, about as many as a byte can count to, so that many are counted at a time: whole
/// vectors of them.
std::size_t CountOf(char ch, std::string_view text) {
  constexpr std::size_t kMostOfAByte = 240;
  std::size_t count = 0;
  for (std::size_t start = 0; start < text.size(); start += kMostOfAByte) {
    std::uint8_t some = 0;
    for (const char next : text.substr(start, kMostOfAByte)) {
      some = static_cast<std::uint8_t>(some + static_cast<std::uint8_t>(next == ch));
    }
    count += some;
  }
  return count;
}

std::string PadLeft(std::string_view text, std::size_t width) {
  const std::size_t length = CharacterCount(text);
  return std::string(length < width ? width - length : 0, ' ').append(text);
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t position = 0;
  for (std::size_t found = text.find(from); found != std::string_view::npos;
       found = text.find(from, position)) {
    result.append(text.substr(position, found - position)).append(to);
    position = found + from.size();
  }
  return result.append(text.substr(position));
}

std::string JoinWithBlanks(std::span<const std::string> items) {
  std::string text;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) text.push_back(' ');
    text.append(items[i]);
  }
  return text;
}

std::string OnOneLine(std::string_view text) {
  std::string line;
  for (const char ch : text) {
    const bool isBreak = ch == '\r' || ch == '\n';
    if (!isBreak) {
      line.push_back(ch);
    } else if (!line.ends_with(' ')) {
      line.push_back(' ');
    }
  }
  line.resize(TrimRightBlanks(line).size());
  return line;
}

std::string GroupDigits(std::int64_t number, std::string_view separator) {
  const std::string digits = std::to_string(number);
  std::string result;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) result.append(separator);
    result.push_back(digits[i]);
  }
  return result;
}

}  // namespace quillomat
