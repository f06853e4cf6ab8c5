#include "system/environment.h"

#include <windows.h>

#include "system/windows/wide_text.h"

namespace quillomat {

std::optional<std::string> EnvironmentVariable(const std::string& name) {
  const std::wstring wideName = ToWide(name);
  std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), L'\0');
  const auto length = static_cast<DWORD>(value.size());
  value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), length));
  if (value.empty()) return std::nullopt;
  return FromWide(value);
}

std::string ProgramPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) return FromWide(std::wstring_view(path).substr(0, length));
    path.resize(2 * path.size());
  }
}

}  // namespace quillomat
