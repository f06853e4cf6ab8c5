#include "system/system_decoder.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <windows.h>

#include "base/character_decoder.h"
#include "base/character_form.h"
#include "base/run_time_error.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

/// Where a page stands for a smaller set than its texts have, that of the larger one, which holds
/// the smaller.
UINT CodePageOf(CharacterSet set) {
  constexpr UINT kWindows1250 = 1250;
  constexpr UINT kIso8859Part1 = 28591;
  const auto behind = [set](CharacterSet first) {
    return static_cast<UINT>(set) - static_cast<UINT>(first);
  };
  if (set >= CharacterSet::kWindows1250 && set <= CharacterSet::kWindows1258) {
    return kWindows1250 + behind(CharacterSet::kWindows1250);
  }
  if (set >= CharacterSet::kIso8859Part1 && set <= CharacterSet::kIso8859Part9) {
    return kIso8859Part1 + behind(CharacterSet::kIso8859Part1);
  }
  switch (set) {
    case CharacterSet::kIso8859Part13:
      return 28603;
    case CharacterSet::kIso8859Part15:
      return 28605;
    case CharacterSet::kKoi8R:
      return 20866;
    case CharacterSet::kKoi8U:
      return 21866;
    case CharacterSet::kShiftJis:
      return 932;
    case CharacterSet::kEucJp:
      return 20932;
    case CharacterSet::kGb18030:
      return IsValidCodePage(54936) != 0 ? 54936 : 936;
    case CharacterSet::kBig5:
      return 950;
    case CharacterSet::kEucKr:
      return 949;
    case CharacterSet::kMacRoman:
      return 10000;
    case CharacterSet::kIbm437:
      return 437;
    case CharacterSet::kIbm850:
      return 850;
    case CharacterSet::kIbm852:
      return 852;
    case CharacterSet::kIbm855:
      return 855;
    case CharacterSet::kIbm866:
      return 866;
    case CharacterSet::kMacCyrillic:
      return 10007;
    // Not every system has these.
    case CharacterSet::kIso8859Part10:
      return 28600;
    case CharacterSet::kIso8859Part11:
      return 874;
    case CharacterSet::kIso8859Part14:
      return 28604;
    case CharacterSet::kIso8859Part16:
      return 28606;
    default:
      return 0;  // which stands for the system's own page
  }
}

bool HasPage(CharacterSet set) {
  const UINT page = CodePageOf(set);
  return page != 0 && IsValidCodePage(page) != 0;
}

/// A set of single bytes without U+0080 to U+009F; of the others the decoder itself knows.
bool LacksControls(CharacterSet set) {
  return !HasLongForms(set) && !NameOf(set).starts_with("ISO-");
}

constexpr UINT kShiftJisPage = 932;
constexpr UINT kMacRomanPage = 10000;
constexpr UINT kEucJpPage = 20932;

/// By the system's code page of the set.
class PageCharacters final : public EncodedCharacters {
 public:
  PageCharacters(UINT page, bool controlsAreUndefined)
      : page_(page), controlsAreUndefined_(controlsAreUndefined) {}

  std::string TextOf(std::string_view bytes) override {
    std::wstring units =
        UnitsOf(page_, page_ == kEucJpPage ? AsInPageOfEucJp(bytes) : std::string(bytes));
    const bool isPair = bytes.size() == 2 && bytes[0] != kHalfWidthKana;
    if (units.empty() && page_ == kEucJpPage && isPair) {
      // The page lacks what usual texts have beyond the standard, which that of Shift_JIS has.
      units = UnitsOf(kShiftJisPage, InShiftJis(bytes));
    }
    std::string text;
    if (units.size() == 1 && !IsUndefined(bytes, units[0])) AppendCharacter(text, units[0]);
    if (units.size() == 2 && IS_SURROGATE_PAIR(units[0], units[1])) {
      AppendCharacter(text, 0x10000U + ((units[0] - 0xD800U) << 10U) + (units[1] - 0xDC00U));
    }
    return text;
  }

 private:
  /// Nothing where they are not in the page.
  static std::wstring UnitsOf(UINT page, std::string_view bytes) {
    std::array<wchar_t, 4> units{};
    const int count = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(),
                                          static_cast<int>(bytes.size()), units.data(),
                                          static_cast<int>(units.size()));
    return {units.data(), static_cast<std::size_t>(count)};
  }

  /// The byte before those of EUC-JP.
  static constexpr char kHalfWidthKana = '\x8E';

  /// The page has the characters of three bytes in two.
  static std::string AsInPageOfEucJp(std::string_view bytes) {
    if (bytes.size() != 3) return std::string(bytes);
    return {bytes[1], static_cast<char>(static_cast<unsigned char>(bytes[2]) & 0x7FU)};
  }

  /// Both sets have rows of 94 characters; Shift_JIS has two behind each first byte, and leaves
  /// out some bytes.
  static std::string InShiftJis(std::string_view eucJp) {
    const unsigned row = static_cast<unsigned char>(eucJp[0]) - 0xA1U;
    const unsigned place = row % 2 * 94 + static_cast<unsigned char>(eucJp[1]) - 0xA1U;
    const unsigned first = row / 2 + (row / 2 < 0x1F ? 0x81 : 0xC1);
    const unsigned second = place + (place < 0x3F ? 0x40 : 0x41);
    return {static_cast<char>(first), static_cast<char>(second)};
  }

  /// What the system puts for bytes that the page leaves undefined: controls or private characters.
  [[nodiscard]] bool IsUndefined(std::string_view bytes, wchar_t unit) const {
    if (unit >= 0xD800 && unit < 0xE000) return true;
    // Mac Roman has an apple there.
    if (unit >= 0xE000 && unit <= 0xF8FF) return bytes.size() == 1 && page_ != kMacRomanPage;
    return controlsAreUndefined_ && unit >= 0x80 && unit < 0xA0;
  }

  UINT page_;
  bool controlsAreUndefined_;
};

}  // namespace

std::unique_ptr<TextDecoder> MakeTextDecoder(CharacterSet set) {
  if (auto decoder = MakeUnicodeDecoder(set)) return decoder;
  if (!HasPage(set)) {
    throw RunTimeError(RunTimeErrorNumber::kInvalidPropertyValue,
                       "this system cannot decode " + std::string(NameOf(set)));
  }
  return std::make_unique<CharacterDecoder>(
      set, std::make_unique<PageCharacters>(CodePageOf(set), LacksControls(set)));
}

bool CanDecode(CharacterSet set) {
  return MakeUnicodeDecoder(set) || HasPage(set);
}

}  // namespace quillomat
