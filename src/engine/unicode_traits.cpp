#include "engine/unicode_traits.h"

#include <algorithm>
#include <span>
#include <utf8proc.h>
#include <utility>

namespace quillomat {
namespace {

using Traits = CodePointTraits;

/// Where characters are assigned that are more than themselves: the rest of the planes is empty, or
/// for private use.
constexpr std::pair<char32_t, char32_t> kAssigned[] = {{0, 0x34000}, {0xE0000, 0xE0200}};

std::uint8_t KindOf(char32_t codePoint) {
  switch (utf8proc_category(static_cast<std::int32_t>(codePoint))) {
    case UTF8PROC_CATEGORY_LU:
    case UTF8PROC_CATEGORY_LL:
    case UTF8PROC_CATEGORY_LT:
    case UTF8PROC_CATEGORY_LM:
    case UTF8PROC_CATEGORY_LO:
      return Traits::kLetter;
    case UTF8PROC_CATEGORY_MN:
    case UTF8PROC_CATEGORY_MC:
    case UTF8PROC_CATEGORY_ME:
      return Traits::kMark;
    case UTF8PROC_CATEGORY_ND:
      return Traits::kDigit;
    case UTF8PROC_CATEGORY_CF:
      return Traits::kFormat;
    default:
      return 0;
  }
}

using Range = std::pair<char32_t, char32_t>;

bool IsInOne(std::span<const Range> ranges, char32_t codePoint) {
  return std::ranges::any_of(ranges, [codePoint](const Range& range) {
    return codePoint >= range.first && codePoint <= range.second;
  });
}

/// Of letters: where those of the two scripts stand, as the library does not know scripts. The
/// micro sign is one: in folded case it is the Greek letter.
bool IsInLatinOrGreekBlock(char32_t codePoint) {
  static constexpr Range kBlocks[] = {
      {0x41, 0x2B8},     // Latin, with IPA and its modifiers
      {0x2E0, 0x2E4},    //
      {0x370, 0x3E1},    // Greek
      {0x3F0, 0x3FF},    // more of it, behind Coptic
      {0x1D00, 0x1D2A},  // phonetic Latin and Greek, before and behind a letter of Cyrillic,
      {0x1D2C, 0x1D77},  // before and behind another,
      {0x1D79, 0x209C},  // then Latin and Greek with many accents, and small letters below the line
      {0x2132, 0x2132},  // letters of Latin among signs
      {0x214E, 0x2184},  //
      {0x2C60, 0x2C7F},  // Latin
      {0xA722, 0xA787},  // before and behind an accent that is a letter
      {0xA78B, 0xA7FF},  //
      {0xAB30, 0xAB69},  //
      {0x10780, 0x107BA},  //
      {0x1DF00, 0x1DFFF},  //
  };
  return IsInOne(kBlocks, codePoint);
}

/// Of letters in such a block: the micro sign, the Greek ones, and some among the phonetic letters.
bool IsGreek(char32_t codePoint) {
  static constexpr Range kBlocks[] = {{0xB5, 0xB5},     {0x370, 0x3FF},   {0x1D26, 0x1D2A},
                                      {0x1D5D, 0x1D61}, {0x1D66, 0x1D6A}, {0x1DBF, 0x1DBF},
                                      {0x1F00, 0x1FFF}, {0xAB65, 0xAB65}};
  return IsInOne(kBlocks, codePoint);
}

/// What the library makes of a character; none becomes more than these.
std::span<const std::int32_t> Mapped(char32_t codePoint, utf8proc_option_t how,
                                     std::array<std::int32_t, 8>& memory) {
  int lastBoundary = 0;
  const auto count =
      utf8proc_decompose_char(static_cast<std::int32_t>(codePoint), memory.data(),
                              static_cast<utf8proc_ssize_t>(memory.size()), how, &lastBoundary);
  return std::span(memory).first(static_cast<std::size_t>(std::max<utf8proc_ssize_t>(count, 0)));
}

std::int32_t Folded(char32_t codePoint) {
  std::array<std::int32_t, 8> memory{};
  const auto folded = Mapped(codePoint, UTF8PROC_CASEFOLD, memory);
  return folded.size() == 1 ? folded[0] : utf8proc_tolower(static_cast<std::int32_t>(codePoint));
}

/// Vowels and finals of Hangul, which are composed with what stands before them.
bool IsHangulFollower(char32_t codePoint) {
  return (codePoint >= 0x1161 && codePoint <= 0x1175) ||
         (codePoint >= 0x11A8 && codePoint <= 0x11C2);
}

/// Whether it is taken apart, and whether it is another thing once it is composed again.
std::uint8_t CompositionOf(char32_t codePoint) {
  std::vector<std::int32_t> codePoints;
  AppendDecomposed(codePoint, codePoints);
  const auto self = static_cast<std::int32_t>(codePoint);
  if (codePoints.size() == 1 && codePoints[0] == self) return 0;
  Compose(codePoints);
  const bool stays = codePoints.size() == 1 && codePoints[0] == self;
  return stays ? Traits::kComposed : Traits::kComposed | Traits::kUnsettled;
}

Traits TraitsOf(char32_t codePoint) {
  const auto self = static_cast<std::int32_t>(codePoint);
  Traits traits;
  traits.toLower = utf8proc_tolower(self) - self;
  traits.toFolded = Folded(codePoint) - self;
  traits.kinds = KindOf(codePoint);
  traits.kinds |= CompositionOf(codePoint);
  if (traits.kinds & Traits::kMark || IsHangulFollower(codePoint)) {
    traits.kinds |= Traits::kUnsettled;
  }
  if (traits.kinds & Traits::kLetter && IsInLatinOrGreekBlock(codePoint)) {
    traits.kinds |= Traits::kLatinOrGreek;
    if (!IsGreek(codePoint)) traits.kinds |= Traits::kLatin;
  }
  return traits;
}

int CombiningClass(std::int32_t codePoint) {
  return utf8proc_get_property(codePoint)->combining_class;
}

/// Marks between two letters, by their classes; those of one class keep their order.
void SortMarks(std::vector<std::int32_t>& codePoints) {
  const auto isMark = [](std::int32_t codePoint) { return CombiningClass(codePoint) != 0; };
  auto first = codePoints.begin();
  while (first != codePoints.end()) {
    first = std::find_if(first, codePoints.end(), isMark);
    const auto end = std::find_if_not(first, codePoints.end(), isMark);
    std::ranges::stable_sort(first, end, {}, CombiningClass);
    first = end;
  }
}

}  // namespace

const UnicodeTraits& UnicodeTraits::Get() {
  static const UnicodeTraits kTraits;
  return kTraits;
}

/// Those where nothing is assigned share one.
const UnicodeTraits::Page& UnicodeTraits::MakePage(std::size_t number) const {
  static constexpr Page kUnassigned{};
  const std::size_t start = number * kPageSize;
  const bool assigned = std::ranges::any_of(kAssigned, [start](const auto& range) {
    return start >= range.first && start < range.second;
  });
  const std::lock_guard lock(making_);
  if (const Page* made = pages_[number].load(std::memory_order_acquire)) return *made;
  const Page* page = &kUnassigned;
  if (assigned) {
    Page& ofOwn = made_.emplace_back();
    for (std::size_t i = 0; i < kPageSize; ++i) {
      const bool surrogate = start + i >= 0xD800 && start + i <= 0xDFFF;
      if (!surrogate) ofOwn[i] = TraitsOf(static_cast<char32_t>(start + i));
    }
    page = &ofOwn;
  }
  pages_[number].store(page, std::memory_order_release);
  return *page;
}

void AppendDecomposed(char32_t codePoint, std::vector<std::int32_t>& codePoints) {
  std::array<std::int32_t, 8> memory{};
  const auto parts = Mapped(codePoint, UTF8PROC_DECOMPOSE, memory);
  codePoints.insert(codePoints.end(), parts.begin(), parts.end());
}

void Compose(std::vector<std::int32_t>& codePoints) {
  SortMarks(codePoints);
  constexpr auto kHow = static_cast<utf8proc_option_t>(UTF8PROC_COMPOSE | UTF8PROC_STABLE);
  const auto left = utf8proc_normalize_utf32(
      codePoints.data(), static_cast<utf8proc_ssize_t>(codePoints.size()), kHow);
  codePoints.resize(static_cast<std::size_t>(std::max<utf8proc_ssize_t>(left, 0)));
}

std::string UnicodeVersion() {
  return utf8proc_unicode_version();
}

}  // namespace quillomat
