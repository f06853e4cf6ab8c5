// The system's knowledge of words in scripts that are written without blanks: ICU's, loaded when it
// is needed first.
#pragma once

#include <memory>

#include "base/run_segmenter.h"

namespace quillomat {

/// Null where the system has no ICU. May be called by any thread.
[[nodiscard]] std::unique_ptr<RunSegmenter> MakeSystemSegmenter();

}  // namespace quillomat
