#include "system/shared_library.h"

#include <windows.h>

#include "system/windows/wide_text.h"

namespace quillomat {

std::optional<SharedLibrary> SharedLibrary::Load(const char* name) {
  const HMODULE handle =
      LoadLibraryExW(ToWide(name).c_str(), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (handle == nullptr) return std::nullopt;
  return SharedLibrary(handle);
}

SharedLibrary::AnyFunction* SharedLibrary::FindAny(const char* name) const {
  return reinterpret_cast<AnyFunction*>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

}  // namespace quillomat
