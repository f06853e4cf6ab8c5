#include "reference/literal_text.h"

#include <array>
#include <utility>

namespace quillomat::reference {
namespace {

constexpr std::array<std::pair<char32_t, char32_t>, 4> kCapitalsAbove255 = {
    {{U'Š', U'š'}, {U'Ž', U'ž'}, {U'Œ', U'œ'}, {U'Ÿ', U'ÿ'}}};

char32_t UpperCase(char32_t character) {
  for (const auto& [capital, small] : kCapitalsAbove255) {
    if (character == small) return capital;
  }
  if (character >= U'a' && character <= U'z') return character - 32;
  if (character >= 0xE0 && character <= 0xFE && character != U'÷') return character - 32;
  return character;
}

std::uint32_t ByteAt(std::string_view text, std::size_t index) {
  return static_cast<unsigned char>(text[index]);
}

void AppendByte(std::string& text, std::uint32_t byte) {
  text.push_back(static_cast<char>(byte));
}

}  // namespace

Characters FromUtf8(std::string_view text) {
  Characters result;
  std::size_t i = 0;
  while (i < text.size()) {
    const std::uint32_t lead = ByteAt(text, i);
    std::size_t following = 0;
    std::uint32_t value = lead;
    if (lead >= 0xF0) {
      following = 3;
      value = lead & 0x07U;
    } else if (lead >= 0xE0) {
      following = 2;
      value = lead & 0x0FU;
    } else if (lead >= 0xC0) {
      following = 1;
      value = lead & 0x1FU;
    }
    i += 1;
    for (; following > 0 && i < text.size(); --following) {
      value = value * 64 + (ByteAt(text, i) & 0x3FU);
      i += 1;
    }
    result.push_back(static_cast<char32_t>(value));
  }
  return result;
}

std::string ToUtf8(const Characters& text) {
  std::string result;
  for (const char32_t character : text) {
    const auto value = static_cast<std::uint32_t>(character);
    if (value < 0x80) {
      AppendByte(result, value);
    } else if (value < 0x800) {
      AppendByte(result, 0xC0 + value / 64);
      AppendByte(result, 0x80 + value % 64);
    } else if (value < 0x10000) {
      AppendByte(result, 0xE0 + value / 4096);
      AppendByte(result, 0x80 + value / 64 % 64);
      AppendByte(result, 0x80 + value % 64);
    } else {
      AppendByte(result, 0xF0 + value / 262144);
      AppendByte(result, 0x80 + value / 4096 % 64);
      AppendByte(result, 0x80 + value / 64 % 64);
      AppendByte(result, 0x80 + value % 64);
    }
  }
  return result;
}

char32_t LowerCase(char32_t character) {
  if (character >= U'A' && character <= U'Z') return character + 32;
  if (character >= 0xC0 && character <= 0xDE && character != U'×') return character + 32;
  for (const auto& [capital, small] : kCapitalsAbove255) {
    if (character == capital) return small;
  }
  return character;
}

Characters LowerCase(const Characters& text) {
  Characters result;
  for (const char32_t character : text) result.push_back(LowerCase(character));
  return result;
}

Characters UpperCase(const Characters& text) {
  Characters result;
  for (const char32_t character : text) result.push_back(UpperCase(character));
  return result;
}

Characters Trim(const Characters& text) {
  std::size_t leading = 0;
  while (leading < text.size() && text[leading] == U' ') leading += 1;
  return RTrim(text.substr(leading));
}

Characters RTrim(const Characters& text) {
  Characters result = text;
  while (!result.empty() && result.back() == U' ') result.pop_back();
  return result;
}

Characters CharacterAt(const Characters& text, std::size_t position) {
  return Mid(text, position, 1);
}

Characters Mid(const Characters& text, std::size_t start, std::size_t length) {
  if (start > text.size()) return U"";
  return text.substr(start - 1, length);
}

Characters Mid(const Characters& text, std::size_t start) {
  return Mid(text, start, text.size());
}

Characters Right(const Characters& text, std::size_t length) {
  if (length >= text.size()) return text;
  return text.substr(text.size() - length);
}

std::size_t InStr(std::size_t start, const Characters& text, const Characters& wanted) {
  if (start > text.size()) return 0;
  const std::size_t index = text.find(wanted, start - 1);
  return index == Characters::npos ? 0 : index + 1;
}

Characters Replace(const Characters& text, const Characters& wanted,
                   const Characters& replacement) {
  Characters result;
  std::size_t position = 1;
  while (position <= text.size()) {
    if (text.compare(position - 1, wanted.size(), wanted) == 0) {
      result += replacement;
      position += wanted.size();
    } else {
      result += text[position - 1];
      position += 1;
    }
  }
  return result;
}

Characters RightJustified(const Characters& text, std::size_t width) {
  if (text.size() >= width) return text;
  return Characters(width - text.size(), U' ') + text;
}

Characters LeftJustified(const Characters& text, std::size_t width) {
  if (text.size() >= width) return text;
  return text + Characters(width - text.size(), U' ');
}

Characters Decimal(std::int32_t number) {
  return FromUtf8(std::to_string(number));
}

Characters Grouped(std::int32_t number) {
  const Characters digits = Decimal(number);
  Characters result;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) result += U',';
    result += digits[i];
  }
  return result;
}

Characters FiveDigits(std::int32_t number) {
  const Characters digits = Decimal(number);
  return Characters(5 - digits.size(), U'0') + digits;
}

std::int32_t NumericValue(const Characters& digits) {
  std::int32_t value = 0;
  for (const char32_t digit : digits) value = value * 10 + static_cast<std::int32_t>(digit - U'0');
  return value;
}

}  // namespace quillomat::reference
