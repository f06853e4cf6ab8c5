#include "engine/token_classes.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <string>

#include "engine/char_class.h"
#include "engine/kernel_choice.h"

// Only Highway's headers are used: its library spends 2 ms on measuring the clock whenever a
// program starts. Nothing here needs its debugging aids, which the library would have to provide.
#define HWY_IS_DEBUG_BUILD 0
// This file is compiled once for every kind of vector that Highway knows on this processor family.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/token_classes.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>
#if HWY_ARCH_X86
#include <immintrin.h>
#endif

HWY_BEFORE_NAMESPACE();
namespace quillomat::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// The bits of the vectors in 64 bytes at `text`, as `inside` chooses the bytes of each.
template <class Bytes, class Inside>
std::uint64_t MaskOf(Bytes d, const std::uint8_t* text, Inside inside) {
  std::uint64_t mask = 0;
  for (std::size_t i = 0; i < kBytesPerMask; i += hn::Lanes(d)) {
    std::uint8_t stored[8 + kBytesPerMask / 8] = {};
    hn::StoreMaskBits(d, inside(hn::LoadU(d, text + i)), stored);
    std::uint64_t part = 0;
    std::memcpy(&part, stored, sizeof part);
    mask |= part << i;
  }
  return mask;
}

template <class Bytes, class Inside>
void FindMasks(Bytes d, std::string_view text, std::span<std::uint64_t> masks, Inside inside) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  const std::size_t whole = text.size() / kBytesPerMask;
  for (std::size_t k = 0; k < whole; ++k) {
    masks[k] = MaskOf(d, bytes + k * kBytesPerMask, inside);
  }
  const std::size_t rest = text.size() % kBytesPerMask;
  if (rest == 0) return;
  std::uint8_t last[kBytesPerMask] = {};
  std::memcpy(last, bytes + whole * kBytesPerMask, rest);
  masks[whole] = MaskOf(d, last, inside) & ((std::uint64_t{1} << rest) - 1);
}

void FindTokenBytes(const TokenClasses& classes, std::string_view text,
                    std::span<std::uint64_t> masks) {
  alignas(16) static constexpr std::uint8_t kBits[16] = {1, 2, 4, 8, 16, 32, 64, 128};
  const hn::CappedTag<std::uint8_t, kBytesPerMask> d;
  const auto rows = hn::LoadDup128(d, classes.Rows().data());
  const auto bits = hn::LoadDup128(d, kBits);
  FindMasks(d, text, masks, [=](auto bytes) {
    const auto row = hn::TableLookupBytes(rows, hn::And(bytes, hn::Set(d, 0x0F)));
    const auto bit = hn::TableLookupBytes(bits, hn::ShiftRight<4>(bytes));
    const auto high = hn::And(bytes, hn::Set(d, 0x80));
    return hn::Ne(hn::Or(hn::And(row, bit), high), hn::Zero(d));
  });
}

void FindSigns(SignPair signs, std::string_view text, std::span<std::uint64_t> masks) {
  const hn::CappedTag<std::uint8_t, kBytesPerMask> d;
  const auto one = hn::Set(d, static_cast<std::uint8_t>(signs.one));
  const auto other = hn::Set(d, static_cast<std::uint8_t>(signs.other));
  FindMasks(d, text, masks,
            [=](auto bytes) { return hn::Or(hn::Eq(bytes, one), hn::Eq(bytes, other)); });
}

/// The places of the bits that differ from the bit before them; returns how many there are. Up to
/// kEdgesAtOnce elements behind them are written to as well.
std::size_t FindEdges(std::span<const std::uint64_t> masks, std::uint32_t* const places) {
  std::uint32_t* next = places;
  std::uint64_t before = 0;
  std::uint32_t base = 0;
  for (const std::uint64_t mask : masks) {
    std::uint64_t edges = mask ^ (mask << 1U | before);
    before = mask >> (kBytesPerMask - 1);
    constexpr std::size_t kAtOnce = 8;
    static_assert(kAtOnce <= kEdgesAtOnce);
    const auto found = static_cast<std::size_t>(std::popcount(edges));
    for (std::size_t written = 0; written < found; written += kAtOnce) {
      for (std::size_t i = 0; i < kAtOnce; ++i) {
        next[written + i] = base + static_cast<std::uint32_t>(std::countr_zero(edges));
        edges &= edges - 1;
      }
    }
    next += found;
    base += kBytesPerMask;
  }
  return static_cast<std::size_t>(next - places);
}

}  // namespace quillomat::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace quillomat {

namespace {

template <typename Inside>
void FindMasksPortably(std::string_view text, std::span<std::uint64_t> masks, Inside inside) {
  for (std::size_t k = 0; k * kBytesPerMask < text.size(); ++k) {
    const std::string_view part = text.substr(k * kBytesPerMask, kBytesPerMask);
    std::uint64_t mask = 0;
    for (std::size_t i = 0; i < part.size(); ++i) {
      mask |= static_cast<std::uint64_t>(inside(part[i])) << i;
    }
    masks[k] = mask;
  }
}

void FindSignsPortably(SignPair signs, std::string_view text, std::span<std::uint64_t> masks) {
  FindMasksPortably(text, masks, [signs](char ch) { return ch == signs.one || ch == signs.other; });
}

std::size_t MasksFor(std::string_view text) {
  return (text.size() + kBytesPerMask - 1) / kBytesPerMask;
}

#if HWY_ARCH_X86 && (HWY_TARGETS & HWY_AVX3) != 0
constexpr std::size_t kPlaces = 16;  // in a vector
static_assert(kEdgesAtOnce == 2 * kPlaces);

/// `base` and the bytes of that quarter of `bits`. With masks, as the compiler takes what others
/// leave undefined for a fault.
template <int quarter>
[[gnu::target("avx512f")]] void WriteSixteen(__m512i bits, __m512i base, std::uint32_t* places) {
  const __m128i bytes = _mm512_maskz_extracti32x4_epi32(0xF, bits, quarter);
  const __m512i numbers = _mm512_maskz_cvtepu8_epi32(0xFFFF, bytes);
  _mm512_storeu_si512(places + quarter * kPlaces, _mm512_add_epi32(base, numbers));
}

/// As FindEdges, for processors that can press the chosen bytes of 64 together at once: without a
/// loop over the edges, and with no branch that would often be foreseen wrong.
[[gnu::target("avx512f,avx512bw,avx512vbmi,avx512vbmi2,popcnt")]] std::size_t FindEdgesByPressing(
    std::span<const std::uint64_t> masks, std::uint32_t* const places) {
  alignas(kBytesPerMask) static constexpr auto kNumbers = [] {
    std::array<std::uint8_t, kBytesPerMask> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = static_cast<std::uint8_t>(i);
    return numbers;
  }();
  const __m512i numbers = _mm512_load_si512(kNumbers.data());
  __m512i base = _mm512_setzero_si512();
  std::uint32_t* next = places;
  std::uint64_t before = 0;
  for (const std::uint64_t mask : masks) {
    const std::uint64_t edges = mask ^ (mask << 1U | before);
    before = mask >> (kBytesPerMask - 1);
    const __m512i bits = _mm512_maskz_compress_epi8(edges, numbers);
    const auto found = static_cast<std::size_t>(std::popcount(edges));
    WriteSixteen<0>(bits, base, next);
    WriteSixteen<1>(bits, base, next);
    if (found > 2 * kPlaces) [[unlikely]] {  // words and gaps of less than two bytes
      WriteSixteen<2>(bits, base, next);
      WriteSixteen<3>(bits, base, next);
    }
    next += found;
    base = _mm512_add_epi32(base, _mm512_set1_epi32(kBytesPerMask));
  }
  return static_cast<std::size_t>(next - places);
}
#endif

struct Kernel {
  std::string_view name;
  void (*findTokenBytes)(const TokenClasses&, std::string_view, std::span<std::uint64_t>);
  void (*findSigns)(SignPair, std::string_view, std::span<std::uint64_t>);
  std::size_t (*findEdges)(std::span<const std::uint64_t>, std::uint32_t*);
};

/// Those that this processor can run, the plainest first.
std::vector<Kernel> UsableKernels() {
  std::vector<Kernel> kernels{
      {"portable", FindTokenBytesPortably, FindSignsPortably, HWY_STATIC_DISPATCH(FindEdges)}};
#if HWY_STATIC_TARGET != HWY_SCALAR  // whose vectors of one byte cannot hold a table of sixteen
  kernels.push_back({"baseline", HWY_STATIC_DISPATCH(FindTokenBytes),
                     HWY_STATIC_DISPATCH(FindSigns), HWY_STATIC_DISPATCH(FindEdges)});
#endif
#if HWY_ARCH_X86
  __builtin_cpu_init();
#if (HWY_TARGETS & HWY_SSSE3) != 0
  if (__builtin_cpu_supports("ssse3")) {
    kernels.push_back({"ssse3", N_SSSE3::FindTokenBytes, N_SSSE3::FindSigns, N_SSSE3::FindEdges});
  }
#endif
#if (HWY_TARGETS & (HWY_AVX2 | HWY_AVX3)) != 0
  const bool avx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
                    __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
                    __builtin_cpu_supports("aes") && __builtin_cpu_supports("pclmul");
#endif
#if (HWY_TARGETS & HWY_AVX2) != 0
  if (avx2) {
    kernels.push_back({"avx2", N_AVX2::FindTokenBytes, N_AVX2::FindSigns, N_AVX2::FindEdges});
  }
#endif
#if (HWY_TARGETS & HWY_AVX3) != 0
  if (avx2 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
      __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw")) {
    kernels.push_back({"avx3", N_AVX3::FindTokenBytes, N_AVX3::FindSigns, N_AVX3::FindEdges});
    if (__builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512vbmi2")) {
      kernels.push_back({"vbmi2", N_AVX3::FindTokenBytes, N_AVX3::FindSigns, FindEdgesByPressing});
    }
  }
#endif
#endif
  return kernels;
}

struct KernelChoice {
  Kernel kernel;
  std::string fault;
};

/// `wanted` is a name, or empty for the best.
KernelChoice ChooseKernel(std::string_view wanted) {
  const std::vector<Kernel> kernels = UsableKernels();
  if (wanted.empty()) return {kernels.back(), ""};
  const auto found = std::find_if(kernels.begin(), kernels.end(),
                                  [&](const Kernel& kernel) { return kernel.name == wanted; });
  if (found != kernels.end()) return {*found, ""};
  std::string fault = "QUILLOMAT_KERNEL is '" + std::string(wanted) + "'; this machine has";
  for (const Kernel& kernel : kernels) fault += " " + std::string(kernel.name);
  return {kernels.back(), fault};
}

const KernelChoice& Choice() {
  static const KernelChoice kChoice = [] {
    const char* const wanted = std::getenv("QUILLOMAT_KERNEL");
    return ChooseKernel(wanted != nullptr ? wanted : "");
  }();
  return kChoice;
}

}  // namespace

std::vector<std::string_view> KernelNames() {
  std::vector<std::string_view> names;
  for (const Kernel& kernel : UsableKernels()) names.push_back(kernel.name);
  return names;
}

std::string_view KernelName() {
  return Choice().kernel.name;
}

std::string KernelFault() {
  return Choice().fault;
}

TokenClasses::TokenClasses(bool allowDigits, std::string_view extras) {
  const CharClass charClass(allowDigits, extras);
  for (unsigned byte = 0; byte < 0x80; ++byte) {
    const char ch = static_cast<char>(byte);
    if (charClass.WordCharBytes({&ch, 1}, 0) == 0) continue;
    rows_[byte & 0xFU] = static_cast<std::uint8_t>(rows_[byte & 0xFU] | (1U << (byte >> 4U)));
  }
}

void FindTokenBytes(const TokenClasses& classes, std::string_view text,
                    std::span<std::uint64_t> masks) {
  Choice().kernel.findTokenBytes(classes, text, masks);
}

void FindTokenBytesPortably(const TokenClasses& classes, std::string_view text,
                            std::span<std::uint64_t> masks) {
  FindMasksPortably(text, masks, [&classes](char ch) { return classes.Holds(ch); });
}

void SignPlaces::Find(SignPair signs, std::string_view text) {
  size_ = text.size();
  masks_.resize(MasksFor(text));
  Choice().kernel.findSigns(signs, text, masks_);
}

void TokenEdges::Classify(const TokenClasses& classes, std::string_view text) {
  masks_.resize(MasksFor(text));
  FindTokenBytes(classes, text, masks_);
}

void TokenEdges::CutOut(std::size_t first, std::size_t end) {
  if (first >= end) return;
  const std::size_t firstMask = first / kBytesPerMask;
  const std::size_t lastMask = (end - 1) / kBytesPerMask;
  const std::uint64_t before = (std::uint64_t{1} << first % kBytesPerMask) - 1;
  const std::uint64_t behind = ~std::uint64_t{1} << (end - 1) % kBytesPerMask;
  if (firstMask == lastMask) {
    masks_[firstMask] &= before | behind;
    return;
  }
  masks_[firstMask] &= before;
  for (std::size_t k = firstMask + 1; k < lastMask; ++k) masks_[k] = 0;
  masks_[lastMask] &= behind;
}

void TokenEdges::Find(std::size_t size) {
  edges_.resize(masks_.size() * kBytesPerMask + kEdgesAtOnce + 1);
  count_ = Choice().kernel.findEdges(masks_, edges_.data());
  // A token that ends with the text has its end there.
  if (count_ % 2 != 0) edges_[count_++] = static_cast<std::uint32_t>(size);
}

}  // namespace quillomat
#endif
