#include "app/exports/export_run.h"

#include <atomic>
#include <future>
#include <new>

#include "base/run_time_error.h"

namespace quillomat {

ExportOutcome RunExport(const RunState& run, EventPump& pump, const ExportWork& work,
                        const std::function<void(std::size_t words)>& onProgress) {
  pump.YieldNow();
  if (run.StopRequested()) return {ExportOutcome::End::kStopped};
  std::atomic<bool> stop = false;
  std::atomic<std::size_t> words = 0;
  // Its destructor waits for the thread, which looks at all of these.
  std::future<bool> writing = std::async(std::launch::async, [&] {
    return work([&](std::size_t done) {
      words = done;
      return !stop;
    });
  });
  try {
    while (writing.wait_for(EventPump::kInterval) != std::future_status::ready) {
      onProgress(words);
      pump.YieldNow();
      stop = run.StopRequested();
    }
    const bool whole = writing.get();
    return {whole ? ExportOutcome::End::kWritten : ExportOutcome::End::kStopped};
  } catch (const RunTimeError& error) {
    return {ExportOutcome::End::kFailed, error.Description()};
  } catch (const std::bad_alloc&) {
    return {ExportOutcome::End::kFailed,
            RunTimeError(RunTimeErrorNumber::kOutOfMemory).Description()};
  }
}

}  // namespace quillomat
