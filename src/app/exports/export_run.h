// Writes an export while the program stays awake: in a thread of its own, as one that takes long
// would stop the windows otherwise, and the library for workbooks cannot be interrupted. Where
// there is no thread to be had the caller's writes, and looks at the windows as it gets on.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "app/count/run_state.h"
#include "export/export_table.h"
#include "ui/event_pump.h"

namespace quillomat {

struct ExportOutcome {
  enum class End { kWritten, kStopped, kFailed };

  End end = End::kWritten;
  /// Why it failed.
  std::string error = {};
};

/// What is written: false when the progress that it is given ended it. Throws RunTimeError.
using ExportWork = std::function<bool(const ExportProgress& progress)>;

/// Returns when it is done; handles the user's clicks before it begins and meanwhile. The stop flag
/// ends it, and the file is as it was. The words must not change meanwhile: the caller is in a
/// phase that sees to it. `onProgress` is called now and then, with the number of words done; what
/// it throws, or a handler of the user's clicks, ends the export; a RunTimeError or a want of
/// memory becomes its outcome, anything else is passed on.
[[nodiscard]] ExportOutcome RunExport(const RunState& run, EventPump& pump, const ExportWork& work,
                                      const std::function<void(std::size_t words)>& onProgress);

}  // namespace quillomat
