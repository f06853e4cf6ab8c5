#include "system/locale_info.h"

#include <array>
#include <windows.h>

#include "base/digit_groups.h"
#include "system/windows/wide_text.h"

namespace quillomat {

namespace {

/// "" where the user has chosen none.
std::string SignOfNumbers(LCTYPE type) {
  std::array<wchar_t, 8> sign{};
  const int units =
      GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, sign.data(), static_cast<int>(sign.size()));
  return units > 1 ? FromWide(sign.data()) : std::string();
}

}  // namespace

std::string DigitGroupSeparator() {
  return GroupSignBeside(DecimalSign(), SignOfNumbers(LOCALE_STHOUSAND));
}

std::string DecimalSign() {
  std::string sign = SignOfNumbers(LOCALE_SDECIMAL);
  return sign.empty() ? "." : sign;
}

}  // namespace quillomat
