// Threads that scan pieces of a text at the same time. The pieces come back in their order. Who
// calls what, and who waits how long, is said in ordered_jobs.h.
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "engine/parallel/line_pieces.h"
#include "engine/parallel/ordered_jobs.h"
#include "engine/parallel/piece_scanner.h"
#include "engine/parallel/placed_pieces.h"
#include "engine/scan_settings.h"
#include "engine/word_list.h"

namespace quillomat {

class PiecePool {
 public:
  struct Piece {
    TextPiece text;
    /// Instead of it, for one that who scans it reads.
    std::optional<PlacedPiece> placed;
    /// It could not be read.
    bool failed = false;
    /// Its markers, and the comment that is open in front of it.
    ScanSettings settings;
    PieceCount count;
    /// Which of the pool's scanners has scanned it, 0 to Threads() - 1.
    std::size_t scanner = 0;
  };

  /// The arguments are those of PieceScanner. Of pieces that are read here about `bytesAtOnce` are
  /// read at once.
  PiecePool(const ScanSettings& settings, const ScanChoices& choices, const WordLists& lists,
            std::size_t threads, std::size_t bytesAtOnce, bool keepOrder = false);

  [[nodiscard]] std::size_t Threads() const { return jobs_.Threads(); }
  [[nodiscard]] std::size_t Pieces() const { return jobs_.Size(); }

  /// Has `text` scanned as the last piece.
  void Submit(TextPiece text, const ScanSettings& settings);
  void Submit(const PlacedPiece& placed, const ScanSettings& settings);

  /// Waits for the first piece; false when it takes longer. There is one.
  [[nodiscard]] bool WaitForFirst(std::chrono::milliseconds longest) {
    return jobs_.WaitForFirst(longest);
  }
  /// The first piece, for which WaitForFirst has returned true. Throws what its scan has thrown.
  [[nodiscard]] const Piece& First() { return jobs_.First(); }
  /// Drops the first piece, and returns its text so that its memory can be used again.
  TextPiece DropFirst() { return jobs_.TakeFirst().text; }

  /// Has that scanner number its words anew, soon.
  void ForgetWords(std::size_t scanner) { scanners_[scanner]->ForgetWordsSoon(); }

  /// Throws the pieces away.
  void Clear();

 private:
  void Scan(Piece& piece, std::size_t scanner);

  std::size_t bytesAtOnce_;
  std::atomic<bool> stop_ = false;
  /// Each belongs to the thread of its number while that is at work.
  std::vector<std::unique_ptr<PieceScanner>> scanners_;
  OrderedJobs<Piece> jobs_;
};

}  // namespace quillomat
