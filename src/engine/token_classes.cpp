#include "engine/token_classes.h"

#include <bit>
#include <cstring>

#include "engine/char_class.h"

// This file is compiled once for every kind of vector that Highway knows on this processor family.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/token_classes.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace quillomat::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// Of the 64 bytes at `text`.
template <class Bytes>
std::uint64_t MaskOf(Bytes d, hn::Vec<Bytes> rows, hn::Vec<Bytes> bits, const std::uint8_t* text) {
  std::uint64_t mask = 0;
  for (std::size_t i = 0; i < kBytesPerMask; i += hn::Lanes(d)) {
    const auto bytes = hn::LoadU(d, text + i);
    const auto row = hn::TableLookupBytes(rows, hn::And(bytes, hn::Set(d, 0x0F)));
    const auto bit = hn::TableLookupBytes(bits, hn::ShiftRight<4>(bytes));
    const auto high = hn::And(bytes, hn::Set(d, 0x80));
    const auto inside = hn::Ne(hn::Or(hn::And(row, bit), high), hn::Zero(d));
    std::uint8_t stored[8 + kBytesPerMask / 8] = {};
    hn::StoreMaskBits(d, inside, stored);
    std::uint64_t part = 0;
    std::memcpy(&part, stored, sizeof part);
    mask |= part << i;
  }
  return mask;
}

void FindTokenBytes(const TokenClasses& classes, std::string_view text,
                    std::span<std::uint64_t> masks) {
  alignas(16) static constexpr std::uint8_t kBits[16] = {1, 2, 4, 8, 16, 32, 64, 128};
  const hn::CappedTag<std::uint8_t, kBytesPerMask> d;
  const auto rows = hn::LoadDup128(d, classes.Rows().data());
  const auto bits = hn::LoadDup128(d, kBits);
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  const std::size_t whole = text.size() / kBytesPerMask;
  for (std::size_t k = 0; k < whole; ++k) {
    masks[k] = MaskOf(d, rows, bits, bytes + k * kBytesPerMask);
  }
  const std::size_t rest = text.size() % kBytesPerMask;
  if (rest == 0) return;
  std::uint8_t last[kBytesPerMask] = {};
  std::memcpy(last, bytes + whole * kBytesPerMask, rest);
  masks[whole] = MaskOf(d, rows, bits, last) & ((std::uint64_t{1} << rest) - 1);
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
    const auto found = static_cast<std::size_t>(std::popcount(edges));
    for (std::size_t written = 0; written < found; written += kEdgesAtOnce) {
      for (std::size_t i = 0; i < kEdgesAtOnce; ++i) {
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

HWY_EXPORT(FindTokenBytes);
HWY_EXPORT(FindEdges);

TokenClasses::TokenClasses(bool allowDigits, std::string_view extras) {
  for (unsigned byte = 0; byte < 0x80; ++byte) {
    const char ch = static_cast<char>(byte);
    if (!IsWordChar({&ch, 1}, allowDigits, extras)) continue;
    rows_[byte & 0xFU] = static_cast<std::uint8_t>(rows_[byte & 0xFU] | (1U << (byte >> 4U)));
  }
}

void FindTokenBytes(const TokenClasses& classes, std::string_view text,
                    std::span<std::uint64_t> masks) {
  HWY_DYNAMIC_DISPATCH(FindTokenBytes)(classes, text, masks);
}

void FindTokenBytesPortably(const TokenClasses& classes, std::string_view text,
                            std::span<std::uint64_t> masks) {
  for (std::size_t k = 0; k * kBytesPerMask < text.size(); ++k) {
    const std::string_view part = text.substr(k * kBytesPerMask, kBytesPerMask);
    std::uint64_t mask = 0;
    for (std::size_t i = 0; i < part.size(); ++i) {
      mask |= static_cast<std::uint64_t>(classes.Holds(part[i])) << i;
    }
    masks[k] = mask;
  }
}

void TokenEdges::Find(const TokenClasses& classes, std::string_view text) {
  masks_.resize((text.size() + kBytesPerMask - 1) / kBytesPerMask);
  edges_.resize(masks_.size() * kBytesPerMask + kEdgesAtOnce + 1);
  FindTokenBytes(classes, text, masks_);
  count_ = HWY_DYNAMIC_DISPATCH(FindEdges)(masks_, edges_.data());
  // A token that ends with the text has its end there.
  if (count_ % 2 != 0) edges_[count_++] = static_cast<std::uint32_t>(text.size());
}

}  // namespace quillomat
#endif
