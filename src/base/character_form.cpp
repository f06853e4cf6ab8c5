#include "base/character_form.h"

#include <array>
#include <cstdint>
#include <span>

namespace quillomat {
namespace {

struct ByteRange {
  std::uint8_t first;
  std::uint8_t last;

  [[nodiscard]] constexpr bool Has(char ch) const {
    const auto byte = static_cast<unsigned char>(ch);
    return byte >= first && byte <= last;
  }
};

/// The bytes that can stand at each place of a character of two bytes or more.
class Form {
 public:
  constexpr Form(ByteRange first, ByteRange second) : ranges_{first, second}, bytes_(2) {}
  constexpr Form(ByteRange first, ByteRange second, ByteRange third)
      : ranges_{first, second, third}, bytes_(3) {}
  constexpr Form(ByteRange first, ByteRange second, ByteRange third, ByteRange fourth)
      : ranges_{first, second, third, fourth}, bytes_(4) {}

  [[nodiscard]] std::size_t Bytes() const { return bytes_; }

  /// How many bytes at the start of `bytes` can stand at the first places.
  [[nodiscard]] std::size_t FittingBytes(std::string_view bytes) const {
    std::size_t fitting = 0;
    while (fitting < bytes_ && fitting < bytes.size() && ranges_[fitting].Has(bytes[fitting])) {
      ++fitting;
    }
    return fitting;
  }

 private:
  std::array<ByteRange, kMostBytesOfCharacter> ranges_;
  std::size_t bytes_;
};

// No bytes fit two forms of one set.
constexpr auto kShiftJis = std::to_array<Form>({{{0x81, 0x9F}, {0x40, 0x7E}},
                                                {{0x81, 0x9F}, {0x80, 0xFC}},
                                                {{0xE0, 0xFC}, {0x40, 0x7E}},
                                                {{0xE0, 0xFC}, {0x80, 0xFC}}});
constexpr auto kEucJp = std::to_array<Form>({{{0xA1, 0xFE}, {0xA1, 0xFE}},
                                             {{0x8E, 0x8E}, {0xA1, 0xDF}},
                                             {{0x8F, 0x8F}, {0xA1, 0xFE}, {0xA1, 0xFE}}});
constexpr auto kGb18030 =
    std::to_array<Form>({{{0x81, 0xFE}, {0x40, 0x7E}},
                         {{0x81, 0xFE}, {0x80, 0xFE}},
                         {{0x81, 0xFE}, {0x30, 0x39}, {0x81, 0xFE}, {0x30, 0x39}}});
constexpr auto kBig5 =
    std::to_array<Form>({{{0x81, 0xFE}, {0x40, 0x7E}}, {{0x81, 0xFE}, {0xA1, 0xFE}}});
constexpr auto kEucKr = std::to_array<Form>(
    {{{0x81, 0xFE}, {0x41, 0x5A}}, {{0x81, 0xFE}, {0x61, 0x7A}}, {{0x81, 0xFE}, {0x81, 0xFE}}});

/// Those of more than one byte.
std::span<const Form> FormsOf(CharacterSet set) {
  switch (set) {
    case CharacterSet::kShiftJis:
      return kShiftJis;
    case CharacterSet::kEucJp:
      return kEucJp;
    case CharacterSet::kGb18030:
      return kGb18030;
    case CharacterSet::kBig5:
      return kBig5;
    case CharacterSet::kEucKr:
      return kEucKr;
    default:
      return {};
  }
}

}  // namespace

std::optional<std::size_t> BytesOfForm(CharacterSet set, std::string_view bytes) {
  for (const Form& form : FormsOf(set)) {
    const std::size_t fitting = form.FittingBytes(bytes);
    if (fitting == form.Bytes()) return fitting;
    if (fitting == bytes.size()) return std::nullopt;
  }
  return 1;
}

bool HasLongForms(CharacterSet set) {
  return !FormsOf(set).empty();
}

}  // namespace quillomat
