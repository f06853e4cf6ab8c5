#include "system/locale_info.h"

#include <clocale>
#include <langinfo.h>
#include <string_view>

#include "base/digit_groups.h"
#include "base/utf8.h"
#include "system/linux/locale_handle.h"

namespace quillomat {
namespace {

/// A separator that is no UTF-8 comes from a locale with single-byte characters, where the
/// separators in use (a point, a quote, a hard blank) are those of Latin-1.
std::string AsUtf8(std::string_view bytes) {
  if (IsWellFormedUtf8(bytes)) return std::string(bytes);
  std::string text;
  for (const char byte : bytes) AppendCharacter(text, static_cast<unsigned char>(byte));
  return text;
}

/// "" where the locale has none.
std::string SignOfNumbers(nl_item item) {
  const Locale locale(newlocale(LC_NUMERIC_MASK, "", nullptr));
  return locale ? AsUtf8(nl_langinfo_l(item, locale.get())) : std::string();
}

}  // namespace

std::string DigitGroupSeparator() {
  return GroupSignBeside(DecimalSign(), SignOfNumbers(THOUSEP));
}

std::string DecimalSign() {
  std::string sign = SignOfNumbers(RADIXCHAR);
  return sign.empty() ? "." : sign;
}

}  // namespace quillomat
