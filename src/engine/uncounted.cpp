#include "engine/uncounted.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <span>

#include "base/utf8.h"
#include "engine/unicode_traits.h"
#include "engine/utf8_kernels.h"

namespace quillomat {
namespace {

constexpr char32_t kCapitalOfLatin1 = 0x178;

bool IsForeignLetterAt(std::string_view text, std::size_t position, bool caseSignificant) {
  const char32_t codePoint = CharacterAt(text, position).codePoint;
  if (codePoint == kCapitalOfLatin1) return caseSignificant;
  return UnicodeTraits::Get().Is(codePoint, CodePointTraits::kLetter);
}

}  // namespace

std::int64_t CountForeignLetters(std::string_view text, bool caseSignificant) {
  constexpr std::size_t kBlocksAtOnce = 64;
  std::array<std::uint64_t, kBlocksAtOnce> memory{};
  std::int64_t letters = 0;
  for (std::size_t first = 0; first < Utf8Blocks(text); first += kBlocksAtOnce) {
    const auto others = std::span(memory).first(std::min(kBlocksAtOnce, Utf8Blocks(text) - first));
    letters += static_cast<std::int64_t>(CountCommonForeign(text, first, others));
    for (std::size_t block = 0; block < others.size(); ++block) {
      for (std::uint64_t bits = others[block]; bits != 0; bits &= bits - 1) {
        const auto bit = static_cast<std::size_t>(std::countr_zero(bits));
        const std::size_t start = (first + block) * kUtf8Block + bit - 1;
        letters += static_cast<std::int64_t>(IsForeignLetterAt(text, start, caseSignificant));
      }
    }
  }
  return letters;
}

}  // namespace quillomat
