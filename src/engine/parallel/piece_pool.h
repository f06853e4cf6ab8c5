// Threads that scan pieces of a text at the same time. The pieces come back in their order.
//
// All calls come from one thread, the owner's. WaitForFirst waits as long as it is told to; Clear
// and the destructor wait until the threads have seen that they are to stop, which they
// look for between blocks of lines.
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "engine/parallel/line_pieces.h"
#include "engine/parallel/piece_scanner.h"
#include "engine/scan_settings.h"
#include "engine/word_list.h"

namespace quillomat {

class PiecePool {
 public:
  struct Piece {
    TextPiece text;
    /// Its markers, and the comment that is open in front of it.
    ScanSettings settings;
    PieceCount count;
    /// Which of the pool's scanners has scanned it, 0 to Threads() - 1.
    std::size_t scanner = 0;
  };

  /// The arguments are those of PieceScanner. As many threads are started as the system gives;
  /// without any, WaitForFirst itself scans.
  PiecePool(const ScanSettings& settings, const ScanChoices& choices, const WordLists& lists,
            std::size_t threads);
  PiecePool(const PiecePool&) = delete;
  PiecePool& operator=(const PiecePool&) = delete;
  PiecePool(PiecePool&&) = delete;
  PiecePool& operator=(PiecePool&&) = delete;
  /// Gives up what is being scanned.
  ~PiecePool();

  /// At least one, the owner's if need be.
  [[nodiscard]] std::size_t Threads() const { return std::max<std::size_t>(threads_.size(), 1); }
  [[nodiscard]] std::size_t Pieces() const { return pieces_.size(); }

  /// Has `text` scanned as the last piece.
  void Submit(TextPiece text, const ScanSettings& settings);

  /// Waits for the first piece; false when it takes longer. There is one.
  [[nodiscard]] bool WaitForFirst(std::chrono::milliseconds longest);
  /// The first piece, for which WaitForFirst has returned true. Throws what its scan has thrown.
  [[nodiscard]] const Piece& First() const;
  /// Drops the first piece, and returns its text so that its memory can be used again.
  TextPiece DropFirst();

  /// Throws the pieces away.
  void Clear();

 private:
  enum class Progress { kWaiting, kAtWork, kDone };
  struct Job {
    Piece piece;
    Progress progress = Progress::kWaiting;
    std::exception_ptr error;
  };

  void Work(std::size_t scanner);
  void Do(Job& job, std::size_t scanner, std::unique_lock<std::mutex>& lock);
  [[nodiscard]] Job* NextJob();

  mutable std::mutex mutex_;
  std::condition_variable workChanged_;
  std::condition_variable jobDone_;
  // Behind the mutex.
  std::deque<std::unique_ptr<Job>> pieces_;
  std::size_t atWork_ = 0;
  bool ending_ = false;

  std::atomic<bool> stop_ = false;
  /// Each belongs to the thread of its number while that is at work.
  std::vector<std::unique_ptr<PieceScanner>> scanners_;
  std::vector<std::jthread> threads_;
};

}  // namespace quillomat
