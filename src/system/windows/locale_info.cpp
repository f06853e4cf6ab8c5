#include "system/locale_info.h"

#include <array>
#include <windows.h>

#include "system/windows/wide_text.h"

namespace quillomat {

std::string DigitGroupSeparator() {
  std::array<wchar_t, 8> separator{};
  const int units = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_STHOUSAND, separator.data(),
                                    static_cast<int>(separator.size()));
  return units > 1 ? FromWide(separator.data()) : ",";
}

}  // namespace quillomat
