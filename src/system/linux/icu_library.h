// The ICU of a Linux system. There may be several versions of it, or another than that of the
// headers: every version is a library of its own, and names its functions after itself.
#pragma once

#include <optional>

#include "system/icu_segmenter.h"

namespace quillomat {

/// The functions of version `preferred`, else of the latest that the system has; nothing where it
/// has none. A library that was loaded is never unloaded.
[[nodiscard]] std::optional<IcuFunctions> LoadIcu(int preferred);

}  // namespace quillomat
