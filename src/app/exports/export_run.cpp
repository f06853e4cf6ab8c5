#include "app/exports/export_run.h"

#include <atomic>
#include <future>
#include <new>
#include <system_error>

#include "base/run_time_error.h"

namespace quillomat {
namespace {

struct Watcher {
  const RunState& run;
  EventPump& pump;
  const std::function<void(std::size_t words)>& onProgress;
};

/// In this thread, which looks at the windows now and then.
bool WriteHere(const Watcher& watcher, const ExportWork& work) {
  return work([&watcher](std::size_t done) {
    watcher.onProgress(done);
    watcher.pump.YieldNow();
    return !watcher.run.StopRequested();
  });
}

bool WriteAside(const Watcher& watcher, const ExportWork& work) {
  std::atomic<bool> stop = false;
  std::atomic<std::size_t> words = 0;
  // Its destructor waits for the thread, which looks at all of these.
  std::future<bool> writing;
  try {
    writing = std::async(std::launch::async, [&] {
      return work([&](std::size_t done) {
        words = done;
        return !stop;
      });
    });
  } catch (const std::system_error&) {
    return WriteHere(watcher, work);  // the system has no thread to give
  }
  try {
    while (writing.wait_for(EventPump::kInterval) != std::future_status::ready) {
      watcher.onProgress(words);
      watcher.pump.YieldNow();
      stop = watcher.run.StopRequested();
    }
  } catch (...) {
    stop = true;
    throw;
  }
  return writing.get();
}

}  // namespace

ExportOutcome RunExport(const RunState& run, EventPump& pump, const ExportWork& work,
                        const std::function<void(std::size_t words)>& onProgress) {
  pump.YieldNow();
  if (run.StopRequested()) return {ExportOutcome::End::kStopped};
  try {
    const bool whole = WriteAside({run, pump, onProgress}, work);
    return {whole ? ExportOutcome::End::kWritten : ExportOutcome::End::kStopped};
  } catch (const RunTimeError& error) {
    return {ExportOutcome::End::kFailed, error.Description()};
  } catch (const std::bad_alloc&) {
    return {ExportOutcome::End::kFailed,
            RunTimeError(RunTimeErrorNumber::kOutOfMemory).Description()};
  }
}

}  // namespace quillomat
