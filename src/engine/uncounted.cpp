#include "engine/uncounted.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

#include "base/utf8.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

/// Leads the first characters beyond U+00FF.
constexpr unsigned char kFirstForeignLead = 0xC4;
constexpr char32_t kCapitalOfLatin1 = 0x178;

/// The first byte at or behind `position` that leads a character beyond U+00FF, or the size.
std::size_t NextForeign(std::string_view text, std::size_t position) {
  const auto byteAt = [text](std::size_t place) { return static_cast<unsigned char>(text[place]); };
  constexpr std::size_t kAtOnce = 64;
  for (; text.size() - position >= kAtOnce; position += kAtOnce) {
    std::array<unsigned char, kAtOnce> bytes;  // NOLINT(cppcoreguidelines-pro-type-member-init)
    std::memcpy(bytes.data(), text.data() + position, bytes.size());
    unsigned char greatest = 0;  // compilers make vectors of that
    for (const unsigned char byte : bytes) greatest = std::max(greatest, byte);
    if (greatest >= kFirstForeignLead) break;
  }
  while (position < text.size() && byteAt(position) < kFirstForeignLead) ++position;
  return position;
}

}  // namespace

std::int64_t CountForeignLetters(std::string_view text, bool caseSignificant) {
  std::int64_t letters = 0;
  for (std::size_t position = NextForeign(text, 0); position < text.size();
       position = NextForeign(text, position)) {
    const Utf8Character character = CharacterAt(text, position);
    position += character.bytes;
    // Most are quotes and dashes: no letters, and no reason to make the table.
    if (character.codePoint >= 0x2000 && character.codePoint < 0x2070) continue;
    if (character.codePoint == kCapitalOfLatin1 && !caseSignificant) continue;
    if (UnicodeTraits::Get().Is(character.codePoint, CodePointTraits::kLetter)) ++letters;
  }
  return letters;
}

}  // namespace quillomat
