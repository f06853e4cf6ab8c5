#include "engine/utf8_kernels.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <iterator>
#include <utility>

#include "base/utf8.h"
#include "engine/kernel_choice.h"

// As in token_classes.cpp, which says why.
#define HWY_IS_DEBUG_BUILD 0
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/utf8_kernels.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#ifndef QUILLOMAT_UTF8_KERNELS_ONCE
#define QUILLOMAT_UTF8_KERNELS_ONCE
namespace quillomat {

/// Characters that a leading byte and the one behind it tell: the leading bytes from one to
/// another, with second bytes from one to another.
struct BytePairs {
  std::uint8_t firstLead;
  std::uint8_t lastLead;
  std::uint8_t firstNext = 0x80;
  std::uint8_t lastNext = 0xBF;
};

/// What may not be in normal form.
inline constexpr BytePairs kSuspects[] = {
    {0xC2, 0xC2, 0xAD, 0xAD},  // soft hyphen
    {0xC4, 0xC4, 0xB0, 0xB0},  // dotted capital I
    {0xCA, 0xCD},              // spacing apostrophe, marks
    {0xCE, 0xCE, 0x87, 0x87},  // Greek's raised dot
    {0xD2, 0xD2},              // scripts with marks
    {0xD6, 0xE3},              // scripts with marks, Hangul in pieces, signs, kana
    {0xEA, 0xEA},              // scripts with marks
    {0xEF, 0xFF},              // forms, marks, and all that is above
};

/// Letters, all of them.
inline constexpr BytePairs kCommonForeign[] = {
    {0xC2, 0xC2, 0xAA, 0xAA},  // the letters of Latin-1 that the western rule leaves out
    {0xC2, 0xC2, 0xB5, 0xB5},  //
    {0xC2, 0xC2, 0xBA, 0xBA},  //
    {0xC4, 0xC4},              // U+0100 to U+013F, Latin
    {0xC5, 0xC5, 0x80, 0xB7},  // U+0140 to U+0177
    {0xC5, 0xC5, 0xB9, 0xBF},  // U+0179 to U+017F
    {0xC6, 0xC9},              // U+0180 to U+027F
    {0xCE, 0xCE, 0x8E, 0xA1},  // U+038E to U+03A1, Greek
    {0xCE, 0xCE, 0xA3, 0xBF},  // U+03A3 to U+03BF
    {0xCF, 0xCF, 0x80, 0xB5},  // U+03C0 to U+03F5
    {0xD0, 0xD1},              // U+0400 to U+047F, Cyrillic
    {0xD7, 0xD7, 0x90, 0xAA},  // U+05D0 to U+05EA, Hebrew
    {0xD8, 0xD8, 0xA0, 0xBF},  // U+0620 to U+063F, Arabic
    {0xD9, 0xD9, 0x80, 0x8A},  // U+0640 to U+064A
    {0xE5, 0xE8},              // U+5000 to U+8FFF, Han
    {0xEB, 0xEC},              // U+B000 to U+CFFF, Hangul
};

/// Neither letters nor rare: quotes and dashes, U+2000 to U+203F.
inline constexpr BytePairs kCommonSigns = {0xE2, 0xE2, 0x80, 0x80};

/// Longer forms than needed, surrogates, and what is above U+10FFFF.
inline constexpr BytePairs kNoCharacters[] = {{0xE0, 0xE0, 0x80, 0x9F},
                                              {0xED, 0xED, 0xA0, 0xBF},
                                              {0xF0, 0xF0, 0x80, 0x8F},
                                              {0xF4, 0xF4, 0x90, 0xBF}};

/// Leads what is beyond U+00FF, as all above it; the other lead has no letters but those above.
inline constexpr std::uint8_t kFirstForeignLead = 0xC4;
inline constexpr std::uint8_t kLeadOfLatin1Signs = 0xC2;
/// The most bytes in front of a byte that bear on it.
inline constexpr std::size_t kBytesBefore = 3;

}  // namespace quillomat
#endif

HWY_BEFORE_NAMESPACE();
namespace quillomat::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// Gives `take` the blocks, each with kBytesBefore bytes in front; zeros stand around the text.
template <class Take>
void ForBlocks(std::string_view text, std::size_t firstBlock, std::size_t count, Take take) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t start = (firstBlock + i) * kUtf8Block;
    if (start > 0 && start + kUtf8Block <= text.size()) {
      take(i, bytes + start);
      continue;
    }
    std::uint8_t padded[kBytesBefore + kUtf8Block] = {};
    const std::size_t before = std::min(start, kBytesBefore);
    const std::size_t left = start < text.size() ? std::min(text.size() - start, kUtf8Block) : 0;
    if (before + left > 0) {
      std::memcpy(padded + kBytesBefore - before, bytes + start - before, before + left);
    }
    take(i, padded + kBytesBefore);
  }
}

using Bytes = hn::CappedTag<std::uint8_t, kUtf8Block>;
using Vector = hn::Vec<Bytes>;
using Mask = hn::Mask<Bytes>;

/// Which bytes are from `first` to `last`.
HWY_INLINE Mask Within(Vector bytes, std::uint8_t first, std::uint8_t last) {
  const Bytes d;
  if (first == last) return hn::Eq(bytes, hn::Set(d, first));
  const auto most = hn::Set(d, static_cast<std::uint8_t>(last - first));
  return hn::Eq(hn::Max(hn::Sub(bytes, hn::Set(d, first)), most), most);
}

HWY_INLINE Mask AtLeast(Vector bytes, std::uint8_t least) {
  return hn::Eq(hn::Max(bytes, hn::Set(Bytes(), least)), bytes);
}

/// Which bytes stand second in one of the pairs.
HWY_INLINE Mask Holds(const BytePairs& pairs, Vector before, Vector bytes) {
  const Mask leads = Within(before, pairs.firstLead, pairs.lastLead);
  if (pairs.firstNext == 0x80 && pairs.lastNext == 0xBF) return leads;
  return hn::And(leads, Within(bytes, pairs.firstNext, pairs.lastNext));
}

template <const auto& kPairs, std::size_t... kEach>
HWY_INLINE Mask HoldAny(Vector before, Vector bytes, std::index_sequence<kEach...> /*each*/) {
  Mask any = Holds(kPairs[0], before, bytes);
  ((any = hn::Or(any, Holds(kPairs[kEach + 1], before, bytes))), ...);
  return any;
}

template <const auto& kPairs>
HWY_INLINE Mask HoldAny(Vector before, Vector bytes) {
  return HoldAny<kPairs>(before, bytes, std::make_index_sequence<std::size(kPairs) - 1>());
}

HWY_INLINE std::uint64_t BitsOf(Mask mask) {
  std::uint8_t stored[8 + kUtf8Block / 8] = {};
  hn::StoreMaskBits(Bytes(), mask, stored);
  std::uint64_t bits = 0;
  std::memcpy(&bits, stored, sizeof bits);
  return bits;
}

/// Which bytes cannot stand where they do.
HWY_INLINE Mask Faults(const std::uint8_t* text) {
  const Bytes d;
  const auto bytes = hn::LoadU(d, text);
  const auto before = hn::LoadU(d, text - 1);
  const auto continuation = Within(bytes, 0x80, 0xBF);
  const auto wanted = hn::Or(AtLeast(before, 0xC0), hn::Or(AtLeast(hn::LoadU(d, text - 2), 0xE0),
                                                           AtLeast(hn::LoadU(d, text - 3), 0xF0)));
  const auto never = hn::Or(Within(bytes, 0xC0, 0xC1), AtLeast(bytes, 0xF5));
  return hn::Or(hn::Xor(continuation, wanted),
                hn::Or(never, HoldAny<kNoCharacters>(before, bytes)));
}

bool IsWellFormed(std::string_view text) {
  const Bytes d;
  bool wellFormed = true;
  ForBlocks(text, 0, Utf8Blocks(text), [&](std::size_t /*block*/, const std::uint8_t* bytes) {
    Mask faults = Faults(bytes);
    for (std::size_t i = hn::Lanes(d); i < kUtf8Block; i += hn::Lanes(d)) {
      faults = hn::Or(faults, Faults(bytes + i));
    }
    wellFormed = wellFormed && hn::AllFalse(d, faults);
  });
  return wellFormed;
}

void MarkSuspects(std::string_view text, std::size_t firstBlock, std::span<std::uint64_t> masks) {
  const Bytes d;
  ForBlocks(text, firstBlock, masks.size(), [&](std::size_t block, const std::uint8_t* bytes) {
    std::uint64_t marks = 0;
    for (std::size_t i = 0; i < kUtf8Block; i += hn::Lanes(d)) {
      const auto before = hn::LoadU(d, bytes + i - 1);
      const Mask suspects = HoldAny<kSuspects>(before, hn::LoadU(d, bytes + i));
      marks |= BitsOf(suspects) << i;
    }
    masks[block] = marks;
  });
}

std::size_t CountCommonForeign(std::string_view text, std::size_t firstBlock,
                               std::span<std::uint64_t> others) {
  const Bytes d;
  std::size_t letters = 0;
  ForBlocks(text, firstBlock, others.size(), [&](std::size_t block, const std::uint8_t* bytes) {
    std::uint64_t marks = 0;
    for (std::size_t i = 0; i < kUtf8Block; i += hn::Lanes(d)) {
      const auto before = hn::LoadU(d, bytes + i - 1);
      const Mask foreign = AtLeast(before, kFirstForeignLead);
      const Mask latin1 = Within(before, kLeadOfLatin1Signs, kLeadOfLatin1Signs);
      if (hn::AllFalse(d, hn::Or(foreign, latin1))) continue;
      const auto behind = hn::LoadU(d, bytes + i);
      const Mask common = HoldAny<kCommonForeign>(before, behind);
      const Mask settled = hn::Or(common, Holds(kCommonSigns, before, behind));
      letters += hn::CountTrue(d, common);
      marks |= BitsOf(hn::AndNot(settled, foreign)) << i;
    }
    others[block] = marks;
  });
  return letters;
}

}  // namespace quillomat::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace quillomat {
namespace {

constexpr bool Holds(const BytePairs& pairs, std::uint8_t lead, std::uint8_t next) {
  return lead >= pairs.firstLead && lead <= pairs.lastLead && next >= pairs.firstNext &&
         next <= pairs.lastNext;
}

template <std::size_t kCount>
bool HoldAny(const BytePairs (&pairs)[kCount], std::uint8_t lead, std::uint8_t next) {
  return std::any_of(std::begin(pairs), std::end(pairs),
                     [=](const BytePairs& each) { return Holds(each, lead, next); });
}

// The portable kernel.

void MarkSuspectsPortably(std::string_view text, std::size_t firstBlock,
                          std::span<std::uint64_t> masks) {
  const auto mark = [&](std::size_t block, const std::uint8_t* bytes) {
    masks[block] = 0;
    for (std::size_t i = 0; i < kUtf8Block; ++i) {
      const bool suspect = bytes[i - 1] >= 0xC2 && HoldAny(kSuspects, bytes[i - 1], bytes[i]);
      masks[block] |= std::uint64_t{suspect} << i;
    }
  };
  HWY_STATIC_DISPATCH(ForBlocks)(text, firstBlock, masks.size(), mark);
}

std::size_t CountCommonForeignPortably(std::string_view text, std::size_t firstBlock,
                                       std::span<std::uint64_t> others) {
  std::size_t letters = 0;
  const auto count = [&](std::size_t block, const std::uint8_t* bytes) {
    others[block] = 0;
    for (std::size_t i = 0; i < kUtf8Block; ++i) {
      const std::uint8_t lead = bytes[i - 1];
      if (lead < kLeadOfLatin1Signs || Holds(kCommonSigns, lead, bytes[i])) continue;
      const bool common = HoldAny(kCommonForeign, lead, bytes[i]);
      letters += static_cast<std::size_t>(common);
      others[block] |= std::uint64_t{!common && lead >= kFirstForeignLead} << i;
    }
  };
  HWY_STATIC_DISPATCH(ForBlocks)(text, firstBlock, others.size(), count);
  return letters;
}

struct Kernel {
  std::string_view name;
  bool (*isWellFormed)(std::string_view);
  void (*markSuspects)(std::string_view, std::size_t, std::span<std::uint64_t>);
  std::size_t (*countCommonForeign)(std::string_view, std::size_t, std::span<std::uint64_t>);
};

constexpr Kernel kKernels[] = {
    {"portable", IsWellFormedUtf8, MarkSuspectsPortably, CountCommonForeignPortably},
#if HWY_STATIC_TARGET != HWY_SCALAR
    {"baseline", HWY_STATIC_DISPATCH(IsWellFormed), HWY_STATIC_DISPATCH(MarkSuspects),
     HWY_STATIC_DISPATCH(CountCommonForeign)},
#endif
#if HWY_ARCH_X86
#if (HWY_TARGETS & HWY_SSSE3) != 0
    {"ssse3", N_SSSE3::IsWellFormed, N_SSSE3::MarkSuspects, N_SSSE3::CountCommonForeign},
#endif
#if (HWY_TARGETS & HWY_AVX2) != 0
    {"avx2", N_AVX2::IsWellFormed, N_AVX2::MarkSuspects, N_AVX2::CountCommonForeign},
#endif
#if (HWY_TARGETS & HWY_AVX3) != 0
    {"avx3", N_AVX3::IsWellFormed, N_AVX3::MarkSuspects, N_AVX3::CountCommonForeign},
    {"vbmi2", N_AVX3::IsWellFormed, N_AVX3::MarkSuspects, N_AVX3::CountCommonForeign},
#endif
#endif
};

/// The one that the processor can run and the user wants.
const Kernel& Choice() {
  static const Kernel& kChoice =
      *std::ranges::find(kKernels, KernelName(), [](const Kernel& kernel) { return kernel.name; });
  return kChoice;
}

}  // namespace

bool IsWellFormedText(std::string_view bytes) {
  return Choice().isWellFormed(bytes);
}

void MarkSuspects(std::string_view text, std::size_t firstBlock, std::span<std::uint64_t> masks) {
  Choice().markSuspects(text, firstBlock, masks);
}

std::size_t CountCommonForeign(std::string_view text, std::size_t firstBlock,
                               std::span<std::uint64_t> others) {
  return Choice().countCommonForeign(text, firstBlock, others);
}

}  // namespace quillomat
#endif
