// One count, without a window: a request goes in, an observer is told and asked, a result comes
// out. Nothing here shows a message; what went wrong is a value in the result.
//
//   const CountResult result = Counter(request).Run();
//
// What ends a count, and what does not: a single text that cannot be read is refused, or fails with
// a run-time error. Of a folder or a list of paths it is skipped, also when memory runs out over
// it, and the count goes on. An overflow of a counter fails any count.
#pragma once

#include <optional>

#include "base/run_time_error.h"
#include "sources/batch_sizes.h"
#include "sources/count_observer.h"
#include "sources/count_request.h"
#include "sources/count_result.h"

namespace quillomat {

class Counter {
 public:
  /// Counts for nobody.
  explicit Counter(const CountRequest& request) : Counter(request, nobody_) {}
  /// Request and observer outlive the counter.
  Counter(const CountRequest& request, CountObserver& observer, const BatchSizes& batches = {})
      : request_(request), observer_(observer), batches_(batches) {}
  Counter(const Counter&) = delete;
  Counter& operator=(const Counter&) = delete;
  Counter(Counter&&) = delete;
  Counter& operator=(Counter&&) = delete;
  ~Counter() = default;

  /// Makes the count. To be called once.
  [[nodiscard]] CountResult Run();

  /// Why a count would be refused before anything is read, as far as that can be told without
  /// opening a file; kNone if it would not. With kFolderUnreadable `error` says why. Yields while
  /// it looks for the files of a folder; what it answers after a stop means nothing.
  [[nodiscard]] static Refusal Check(const CountRequest& request,
                                     std::optional<RunTimeError>& error, ScanYield& yield);

 private:
  CountObserver nobody_;
  const CountRequest& request_;
  CountObserver& observer_;
  BatchSizes batches_;
};

}  // namespace quillomat
