#include "system/system_segmenter.h"

#include <optional>
#include <windows.h>

#include "system/icu_segmenter.h"

namespace quillomat {
namespace {

template <typename Function>
bool Find(HMODULE library, const char* name, Function& function) {
  // By way of a type that may be any function.
  function =
      reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
  return function != nullptr;
}

/// Windows has the library since version 1903 of Windows 10. It is never unloaded.
std::optional<IcuFunctions> LoadFunctions() {
  const HMODULE library = LoadLibraryExW(L"icu.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (library == nullptr) return std::nullopt;
  IcuFunctions functions{};
  const bool found = Find(library, "ubrk_open", functions.open) &&
                     Find(library, "ubrk_setText", functions.setText) &&
                     Find(library, "ubrk_next", functions.next) &&
                     Find(library, "ubrk_close", functions.close);
  if (!found) return std::nullopt;
  return functions;
}

}  // namespace

std::unique_ptr<RunSegmenter> MakeSystemSegmenter() {
  static const std::optional<IcuFunctions> kFunctions = LoadFunctions();
  return kFunctions ? MakeIcuSegmenter(*kFunctions) : nullptr;
}

}  // namespace quillomat
