// Threads that take batches of files at the same time. The batches come back in their order; one
// whose files have more bytes than a batch is to have comes back as several. Who calls what, and
// who waits how long, is said in ordered_jobs.h.
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <memory>
#include <vector>

#include "engine/parallel/ordered_jobs.h"
#include "engine/scan_settings.h"
#include "sources/count_request.h"
#include "sources/file_batch.h"

namespace quillomat {

class FilePool {
 public:
  /// The arguments are those of FileScanner.
  FilePool(const ScanSettings& settings, const CountRequest& request, std::size_t batchBytes,
           PieceScanner::Counts counts);

  [[nodiscard]] std::size_t Threads() const { return jobs_.Threads(); }
  [[nodiscard]] std::size_t Batches() const { return jobs_.Size(); }

  /// Has a batch taken as the last one.
  void Submit(FileBatch batch) { jobs_.Submit(std::move(batch)); }

  /// Waits for the first batch; false when it takes longer. There is one.
  [[nodiscard]] bool WaitForFirst(std::chrono::milliseconds longest) {
    return jobs_.WaitForFirst(longest);
  }
  /// Takes the first batch out, for which WaitForFirst has returned true.
  [[nodiscard]] FileBatch TakeFirst();

  /// Has that scanner number its words anew.
  void ForgetWords(std::size_t scanner) { scanners_[scanner]->ForgetWords(); }

 private:
  [[nodiscard]] std::size_t Take(FileBatch& batch, std::size_t scanner);

  std::atomic<bool> stop_ = false;
  /// Each belongs to the thread of its number while that is at work.
  std::vector<std::unique_ptr<FileScanner>> scanners_;
  OrderedJobs<FileBatch> jobs_;
};

}  // namespace quillomat
