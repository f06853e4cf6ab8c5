#include "system/system_segmenter.h"

#include <optional>

#include "system/icu_segmenter.h"
#include "system/shared_library.h"

namespace quillomat {
namespace {

/// Windows has the library since version 1903 of Windows 10.
std::optional<IcuFunctions> LoadFunctions() {
  const std::optional<SharedLibrary> library = SharedLibrary::Load("icu.dll");
  if (!library) return std::nullopt;
  IcuFunctions functions{};
  const bool found = library->Find("ubrk_open", functions.open) &&
                     library->Find("ubrk_setText", functions.setText) &&
                     library->Find("ubrk_next", functions.next) &&
                     library->Find("ubrk_close", functions.close);
  if (!found) return std::nullopt;
  return functions;
}

}  // namespace

std::unique_ptr<RunSegmenter> MakeSystemSegmenter() {
  static const std::optional<IcuFunctions> kFunctions = LoadFunctions();
  return kFunctions ? MakeIcuSegmenter(*kFunctions) : nullptr;
}

}  // namespace quillomat
