#include "sources/file_pool.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillomat {
namespace {

/// What was scanned and is not joined yet has about so many batches at most, for each thread.
constexpr std::size_t kBatchesAhead = 4;

std::vector<std::unique_ptr<FileScanner>> MakeScanners(const ScanSettings& settings,
                                                       const CountRequest& request,
                                                       const std::atomic<bool>& stop,
                                                       std::size_t batchBytes,
                                                       PieceScanner::Counts counts) {
  std::vector<std::unique_ptr<FileScanner>> scanners;
  for (std::size_t i = 0; i < std::max<std::size_t>(request.threads, 1); ++i) {
    scanners.push_back(std::make_unique<FileScanner>(settings, request, stop, batchBytes, counts));
  }
  return scanners;
}

}  // namespace

FilePool::FilePool(const ScanSettings& settings, const CountRequest& request,
                   std::size_t batchBytes, PieceScanner::Counts counts)
    : scanners_(MakeScanners(settings, request, stop_, batchBytes, counts)),
      jobs_(
          request.threads, stop_,
          [this](FileBatch& batch, std::size_t scanner) { return Take(batch, scanner); },
          kBatchesAhead * request.threads * batchBytes) {}

/// Returns how many bytes were scanned. What is too much for one batch becomes the next.
std::size_t FilePool::Take(FileBatch& batch, std::size_t scanner) {
  batch.scanner = scanner;
  std::size_t bytes = 0;
  int openComment = batch.openComment;
  const std::size_t taken = scanners_[scanner]->Take(batch.items, openComment, bytes);
  if (taken == batch.items.size() || stop_) return bytes;
  const auto firstLeft = batch.items.begin() + static_cast<std::ptrdiff_t>(taken);
  FileBatch rest;
  rest.items.assign(std::move_iterator(firstLeft), std::move_iterator(batch.items.end()));
  rest.openComment = openComment;
  batch.items.erase(firstLeft, batch.items.end());
  jobs_.AddBehind(batch, std::move(rest));
  return bytes;
}

FileBatch FilePool::TakeFirst() {
  static_cast<void>(jobs_.First());  // which may throw
  return jobs_.TakeFirst();
}

}  // namespace quillomat
