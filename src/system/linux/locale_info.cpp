#include "system/locale_info.h"

#include <clocale>
#include <langinfo.h>
#include <string_view>

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

}  // namespace

std::string DigitGroupSeparator() {
  const Locale locale(newlocale(LC_NUMERIC_MASK, "", nullptr));
  const std::string separator = locale ? nl_langinfo_l(THOUSEP, locale.get()) : "";
  return separator.empty() ? "," : AsUtf8(separator);
}

}  // namespace quillomat
