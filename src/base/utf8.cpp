#include "base/utf8.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace quillomat {
namespace {

constexpr unsigned kContinuationMask = 0xC0;
constexpr unsigned kContinuationMark = 0x80;

unsigned ByteAt(std::string_view text, std::size_t position) {
  return static_cast<unsigned char>(text[position]);
}

bool IsContinuation(unsigned byte) {
  return (byte & kContinuationMask) == kContinuationMark;
}

/// The length that a lead byte announces; 0 for a byte that cannot lead.
std::size_t AnnouncedBytes(unsigned lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC2) return 0;
  if (lead < 0xE0) return 2;
  if (lead < 0xF0) return 3;
  if (lead < 0xF5) return 4;
  return 0;
}

bool IsInRangeForItsLength(char32_t codePoint, std::size_t bytes) {
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (codePoint < kSmallest[bytes] || codePoint > 0x10FFFF) return false;
  return codePoint < 0xD800 || codePoint > 0xDFFF;
}

/// The character at `position` when it is well-formed; otherwise bytes is 0.
Utf8Character WellFormedCharacterAt(std::string_view text, std::size_t position) {
  const unsigned lead = ByteAt(text, position);
  if (lead < 0x80) return {static_cast<char32_t>(lead), 1};
  const std::size_t bytes = AnnouncedBytes(lead);
  if (bytes == 0 || bytes > text.size() - position) return {};
  char32_t codePoint = lead & (0x7FU >> bytes);
  for (std::size_t i = 1; i < bytes; ++i) {
    const unsigned next = ByteAt(text, position + i);
    if (!IsContinuation(next)) return {};
    codePoint = (codePoint << 6U) | (next & 0x3FU);
  }
  if (!IsInRangeForItsLength(codePoint, bytes)) return {};
  return {codePoint, bytes};
}

/// How many bytes from `position` on are well-formed characters of one or two bytes.
std::size_t AsciiOrTwoBytes(std::string_view bytes, std::size_t position) {
  const std::size_t start = position;
  while (position < bytes.size()) {
    const unsigned lead = ByteAt(bytes, position);
    if (lead < 0x80) {
      ++position;
    } else if (AnnouncedBytes(lead) == 2 && position + 1 < bytes.size() &&
               IsContinuation(ByteAt(bytes, position + 1))) {
      position += 2;
    } else {
      break;
    }
  }
  return position - start;
}

}  // namespace

Utf8Character CharacterAt(std::string_view text, std::size_t position) {
  const Utf8Character character = WellFormedCharacterAt(text, position);
  if (character.bytes != 0) return character;
  return {static_cast<char32_t>(ByteAt(text, position)), 1};
}

std::size_t CharacterCount(std::string_view text) {
  if (IsAscii(text)) return text.size();
  std::size_t count = 0;
  for (std::size_t position = 0; position < text.size(); ++count) {
    position += CharacterAt(text, position).bytes;
  }
  return count;
}

std::size_t BytesOfFirst(std::string_view text, std::size_t characters) {
  std::size_t position = 0;
  for (; characters > 0 && position < text.size(); --characters) {
    position += CharacterAt(text, position).bytes;
  }
  return position;
}

std::size_t LastCharacterStart(std::string_view text) {
  if (text.empty()) return 0;
  const std::size_t last = text.size() - 1;
  for (std::size_t back = 0; back < 4 && back <= last; ++back) {
    const std::size_t position = last - back;
    if (IsContinuation(ByteAt(text, position))) continue;
    return CharacterAt(text, position).bytes == back + 1 ? position : last;
  }
  return last;
}

void AppendCharacter(std::string& text, char32_t codePoint) {
  const auto value = static_cast<std::uint32_t>(codePoint);
  const auto append = [&text](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (value < 0x80) {
    append(value);
  } else if (value < 0x800) {
    append(0xC0U | (value >> 6U));
    append(0x80U | (value & 0x3FU));
  } else if (value < 0x10000) {
    append(0xE0U | (value >> 12U));
    append(0x80U | ((value >> 6U) & 0x3FU));
    append(0x80U | (value & 0x3FU));
  } else {
    append(0xF0U | (value >> 18U));
    append(0x80U | ((value >> 12U) & 0x3FU));
    append(0x80U | ((value >> 6U) & 0x3FU));
    append(0x80U | (value & 0x3FU));
  }
}

bool IsAscii(std::string_view bytes) {
  std::size_t position = 0;
  // Many at once and without a look in between: compilers make vectors of that.
  constexpr std::size_t kNumbers = 16;
  constexpr std::size_t kAtOnce = kNumbers * sizeof(std::uint64_t);
  for (; bytes.size() - position >= kAtOnce; position += kAtOnce) {
    std::array<std::uint64_t, kNumbers> numbers{};
    std::memcpy(numbers.data(), bytes.data() + position, kAtOnce);
    std::uint64_t all = 0;
    for (const std::uint64_t number : numbers) all |= number;
    if ((all & 0x8080808080808080ULL) != 0) return false;
  }
  for (; bytes.size() - position >= sizeof(std::uint64_t); position += sizeof(std::uint64_t)) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes.data() + position, sizeof eight);
    if ((eight & 0x8080808080808080ULL) != 0) return false;
  }
  for (; position < bytes.size(); ++position) {
    if (ByteAt(bytes, position) >= 0x80) return false;
  }
  return true;
}

std::size_t WellFormedUtf8Bytes(std::string_view bytes) {
  if (IsAscii(bytes)) return bytes.size();
  std::size_t position = 0;
  while (position < bytes.size()) {
    position += AsciiOrTwoBytes(bytes, position);  // most text is nothing else
    if (position == bytes.size()) break;
    const Utf8Character character = WellFormedCharacterAt(bytes, position);
    if (character.bytes == 0) break;
    position += character.bytes;
  }
  return position;
}

bool IsWellFormedUtf8(std::string_view bytes) {
  return WellFormedUtf8Bytes(bytes) == bytes.size();
}

}  // namespace quillomat
