#include "system/system_decoder.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>
#include <windows.h>

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

/// The system does not say where a text is wrong, so it is asked for one character after the other,
/// and once for each: what it has said is kept.
class CodePageDecoder final : public TextDecoder {
 public:
  CodePageDecoder(UINT page, bool controlsAreUndefined)
      : page_(page), controlsAreUndefined_(controlsAreUndefined) {
    CPINFO info{};
    if (GetCPInfo(page, &info) != 0) mostBytes_ = info.MaxCharSize;
    if (page == kEucJpPage) mostBytes_ = 3;
    for (std::size_t byte = 0; byte < single_.size(); ++byte) {
      const char ch = static_cast<char>(byte);
      single_[byte] = Ask({&ch, 1});
    }
  }

  void Decode(std::string_view bytes, std::string& text) override {
    input_.append(bytes);
    std::string_view rest = input_;
    while (!rest.empty()) {
      std::size_t length = 1;
      char32_t character = single_[static_cast<unsigned char>(rest[0])];
      while (character == kNone && length < mostBytes_ && length < rest.size()) {
        ++length;
        character = CharacterOf(rest.substr(0, length));
      }
      if (character == kNone && length < mostBytes_) break;  // unfinished, as far as is known
      if (character == kNone) {
        Replace(1, text);
        length = 1;
      } else {
        AppendCharacter(text, character);
      }
      rest.remove_prefix(length);
    }
    input_.erase(0, input_.size() - rest.size());
  }

  /// Behind a byte that begins nothing others may follow that are whole.
  void End(std::string& text) override {
    while (!input_.empty()) {
      Replace(1, text);
      const std::string rest = input_.substr(1);
      input_.clear();
      Decode(rest, text);
    }
  }

 private:
  static constexpr char32_t kNone = 0xFFFFFFFF;
  static constexpr char32_t kNotAsked = 0xFFFFFFFE;
  static constexpr UINT kEucJpPage = 20932;

  char32_t CharacterOf(std::string_view bytes) {
    if (bytes.size() != 2) return Ask(bytes);
    if (pairs_.empty()) pairs_.assign(std::size_t{1} << 16U, kNotAsked);
    const auto high = static_cast<unsigned char>(bytes[0]);
    const auto low = static_cast<unsigned char>(bytes[1]);
    char32_t& pair = pairs_[(std::size_t{high} << 8U) | low];
    if (pair == kNotAsked) pair = Ask(bytes);
    return pair;
  }

  [[nodiscard]] char32_t Ask(std::string_view bytes) const {
    std::string asked(bytes);
    if (page_ == kEucJpPage && bytes.size() == 3) {
      // The page has the second plane in two bytes.
      if (bytes[0] != '\x8F') return kNone;
      asked = {bytes[1], static_cast<char>(static_cast<unsigned char>(bytes[2]) & 0x7FU)};
    }
    std::array<wchar_t, 4> units{};
    const int count = MultiByteToWideChar(page_, MB_ERR_INVALID_CHARS, asked.data(),
                                          static_cast<int>(asked.size()), units.data(),
                                          static_cast<int>(units.size()));
    if (count == 1) return IsUndefined(bytes, units[0]) ? kNone : char32_t{units[0]};
    if (count == 2 && IS_SURROGATE_PAIR(units[0], units[1])) {
      return 0x10000U + ((units[0] - 0xD800U) << 10U) + (units[1] - 0xDC00U);
    }
    return kNone;
  }

  /// What the system puts for bytes that the page leaves undefined: controls or private characters.
  [[nodiscard]] bool IsUndefined(std::string_view bytes, wchar_t unit) const {
    if (unit >= 0xD800 && unit < 0xE000) return true;
    if (unit >= 0xE000 && unit <= 0xF8FF) return bytes.size() == 1 && page_ != kMacRomanPage;
    return controlsAreUndefined_ && unit >= 0x80 && unit < 0xA0;
  }

  static constexpr UINT kMacRomanPage = 10000;  // which has an apple there

  UINT page_;
  bool controlsAreUndefined_;
  std::size_t mostBytes_ = 1;
  std::array<char32_t, 256> single_{};
  /// By both bytes.
  std::vector<char32_t> pairs_;
  /// Of an unfinished character.
  std::string input_;
};

}  // namespace

std::unique_ptr<TextDecoder> MakeTextDecoder(CharacterSet set) {
  if (auto decoder = MakeUnicodeDecoder(set)) return decoder;
  if (!HasPage(set)) {
    throw RunTimeError(RunTimeErrorNumber::kInvalidPropertyValue,
                       "this system cannot decode " + std::string(NameOf(set)));
  }
  return std::make_unique<CodePageDecoder>(CodePageOf(set), !NameOf(set).starts_with("ISO-"));
}

bool CanDecode(CharacterSet set) {
  return MakeUnicodeDecoder(set) || HasPage(set);
}

}  // namespace quillomat
