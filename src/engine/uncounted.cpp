#include "engine/uncounted.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <span>

#include "base/utf8.h"
#include "engine/normal_text.h"
#include "engine/unicode_traits.h"
#include "engine/utf8_kernels.h"

namespace quillomat {
namespace {

constexpr char32_t kCapitalOfLatin1 = 0x178;

bool IsMark(char32_t codePoint) {
  return UnicodeTraits::Get().Is(codePoint, CodePointTraits::kMark);
}

/// By the rule for all letters.
bool IsLetter(char32_t codePoint) {
  return codePoint != kLetterApostrophe &&
         UnicodeTraits::Get().Is(codePoint, CodePointTraits::kLetter);
}

/// Looks at characters in their order.
class ForeignLetters {
 public:
  ForeignLetters(std::string_view text, bool caseSignificant, bool behindLetter)
      : text_(text), caseSignificant_(caseSignificant), marks_(text, behindLetter) {}

  bool IsAt(std::size_t position) {
    const Utf8Character character = CharacterAt(text_, position);
    if (character.codePoint == kCapitalOfLatin1) return caseSignificant_;
    if (IsMark(character.codePoint)) return marks_.IsOnLetter(position, character.bytes);
    return IsLetter(character.codePoint);
  }

 private:
  std::string_view text_;
  bool caseSignificant_;
  MarksOnLetters marks_;
};

}  // namespace

bool EndsInLetter(std::string_view text, bool behindLetter) {
  while (!text.empty()) {
    const std::size_t last = LastCharacterStart(text);
    const char32_t codePoint = CharacterAt(text, last).codePoint;
    if (!IsMark(codePoint) && !IsDropped(codePoint)) return IsLetter(codePoint);
    text = text.substr(0, last);
  }
  return behindLetter;
}

std::int64_t CountForeignLetters(std::string_view text, bool caseSignificant, bool behindLetter) {
  constexpr std::size_t kBlocksAtOnce = 64;
  std::array<std::uint64_t, kBlocksAtOnce> memory{};
  ForeignLetters foreign(text, caseSignificant, behindLetter);
  std::int64_t letters = 0;
  for (std::size_t first = 0; first < Utf8Blocks(text); first += kBlocksAtOnce) {
    const auto others = std::span(memory).first(std::min(kBlocksAtOnce, Utf8Blocks(text) - first));
    letters += static_cast<std::int64_t>(CountCommonForeign(text, first, others));
    for (std::size_t block = 0; block < others.size(); ++block) {
      for (std::uint64_t bits = others[block]; bits != 0; bits &= bits - 1) {
        const auto bit = static_cast<std::size_t>(std::countr_zero(bits));
        const std::size_t start = (first + block) * kUtf8Block + bit - 1;
        letters += static_cast<std::int64_t>(foreign.IsAt(start));
      }
    }
  }
  return letters;
}

}  // namespace quillomat
