#include "system/windows/wide_text.h"

#include <windows.h>

namespace quillomat {

std::wstring ToWide(std::string_view utf8) {
  const int bytes = static_cast<int>(utf8.size());
  const int units = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(units), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), units);
  return wide;
}

std::string FromWide(std::wstring_view wide) {
  const int units = static_cast<int>(wide.size());
  const int bytes =
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(), bytes, nullptr, nullptr);
  return utf8;
}

}  // namespace quillomat
