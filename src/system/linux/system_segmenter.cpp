#include "system/system_segmenter.h"

#include <dlfcn.h>
#include <optional>
#include <unicode/uvernum.h>

#include "system/icu_segmenter.h"

namespace quillomat {
namespace {

constexpr const char* kLibrary = "libicuuc.so." U_ICU_VERSION_SHORT;

// Every version of the library names its functions after itself, by a macro.
#define QUILLOMAT_AS_TEXT(name) #name
#define QUILLOMAT_ICU_NAME(name) QUILLOMAT_AS_TEXT(name)

template <typename Function>
bool Find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  return function != nullptr;
}

/// The library is never unloaded.
std::optional<IcuFunctions> LoadFunctions() {
  void* const library = dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return std::nullopt;
  IcuFunctions functions{};
  const bool found =
      Find(library, QUILLOMAT_ICU_NAME(U_ICU_ENTRY_POINT_RENAME(ubrk_open)), functions.open) &&
      Find(library, QUILLOMAT_ICU_NAME(U_ICU_ENTRY_POINT_RENAME(ubrk_setText)),
           functions.setText) &&
      Find(library, QUILLOMAT_ICU_NAME(U_ICU_ENTRY_POINT_RENAME(ubrk_next)), functions.next) &&
      Find(library, QUILLOMAT_ICU_NAME(U_ICU_ENTRY_POINT_RENAME(ubrk_close)), functions.close);
  if (!found) return std::nullopt;
  return functions;
}

}  // namespace

std::unique_ptr<RunSegmenter> MakeSystemSegmenter() {
  static const std::optional<IcuFunctions> kFunctions = LoadFunctions();
  return kFunctions ? MakeIcuSegmenter(*kFunctions) : nullptr;
}

}  // namespace quillomat
