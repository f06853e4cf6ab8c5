#include "base/broken_character.h"

#include <cstdint>

namespace quillomat {
namespace {

/// A second half that is ASCII is left out: it may be a letter of its own.
struct PairRange {
  std::uint8_t firstLead = 0;
  std::uint8_t firstTrail = 0;

  [[nodiscard]] bool HasLead(unsigned char byte) const {
    return firstLead != 0 && byte >= firstLead && byte <= kLast;
  }
  [[nodiscard]] bool HasTrail(unsigned char byte) const {
    return byte >= firstTrail && byte <= kLast;
  }

  static constexpr std::uint8_t kLast = 0xFE;
};

PairRange RangeOf(CharacterSet set) {
  switch (set) {
    case CharacterSet::kShiftJis:
    case CharacterSet::kGb18030:
      return {0x81, 0x80};
    case CharacterSet::kEucKr:
      return {0x81, 0x81};
    case CharacterSet::kBig5:
      return {0x81, 0xA1};
    case CharacterSet::kEucJp:
      return {0xA1, 0xA1};
    default:
      return {};
  }
}

/// The byte of EUC-JP that a pair of its second plane stands behind.
constexpr unsigned char kPlaneLead = 0x8F;

}  // namespace

std::size_t BytesOfBrokenCharacter(CharacterSet set, std::string_view bytes) {
  const PairRange range = RangeOf(set);
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  const bool hasPlane = set == CharacterSet::kEucJp && byteAt(0) == kPlaneLead;
  if (!hasPlane && !range.HasLead(byteAt(0))) return 1;
  const std::size_t whole = hasPlane ? 3 : 2;
  for (std::size_t at = 1; at < whole; ++at) {
    if (at == bytes.size()) return 0;
    if (!range.HasTrail(byteAt(at))) return 1;
  }
  return whole;
}

}  // namespace quillomat
