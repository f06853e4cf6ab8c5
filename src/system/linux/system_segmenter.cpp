#include "system/system_segmenter.h"

#include <optional>
#include <unicode/uvernum.h>

#include "system/icu_segmenter.h"
#include "system/linux/icu_library.h"

namespace quillomat {

std::unique_ptr<RunSegmenter> MakeSystemSegmenter() {
  static const std::optional<IcuFunctions> kFunctions = LoadIcu(U_ICU_VERSION_MAJOR_NUM);
  return kFunctions ? MakeIcuSegmenter(*kFunctions) : nullptr;
}

}  // namespace quillomat
