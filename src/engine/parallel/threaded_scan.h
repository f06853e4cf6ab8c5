// Scans a large text on several cores: has it scanned piece by piece, and joins what was found in
// the order of the pieces. Who scans a piece of a text that lies still (ByteSource::Rest) reads it,
// too; of any other text, and from the first piece on that cannot be joined, the caller's thread
// reads the pieces. Words, first spellings, the order in which new words are told of,
// open comments, file tallies and overflows are those of a scan from end to end; a stop comes at
// the end of a piece. A line that is longer than two pieces is scanned by the caller's thread, part
// by part (LongLine), so memory does not grow with it.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <optional>
#include <vector>

#include "base/byte_source.h"
#include "engine/parallel/line_pieces.h"
#include "engine/parallel/open_comment_finder.h"
#include "engine/parallel/piece_pool.h"
#include "engine/parallel/piece_scanner.h"
#include "engine/parallel/placed_pieces.h"
#include "engine/scan_settings.h"
#include "engine/word_list.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"

namespace quillomat {

class ThreadedScan {
 public:
  /// What a scan changes.
  struct Target {
    /// The allow flags are ready. The markers may change between two texts.
    ScanSettings& settings;
    /// Neither sorted nor cleared as long as the scan lives. A listener to the order of words is
    /// there from the start, or there is none.
    WordStore& store;
    std::int32_t& wordsRead;
  };

  /// Everything must outlive the scan.
  ThreadedScan(const Target& target, const ScanChoices& choices, const WordLists& lists,
               std::size_t threads, std::size_t pieceBytes = LinePieces::kPieceBytes)
      : target_(target),
        pieceBytes_(pieceBytes),
        pool_(target.settings, choices, lists, threads, 1 + pieceBytes / kReadsPerPiece,
              target.store.OrderListener() != nullptr),
        joiners_(std::max<std::size_t>(threads, 1)),
        openComments_(target.settings, choices, lists,
                      std::min(OpenCommentFinder::kLookedAt, 1 + pieceBytes / 4)),
        choices_(choices),
        lists_(lists),
        scanner_(target_.settings, choices, lists, target_.store, yield_) {}

  struct Callbacks {
    /// Is called about every kLongestWait or more often, and says whether the scan is to stop.
    std::function<bool()> yield;
    /// Is told of every piece's bytes, with two for a line end, before its words are counted.
    std::function<void(std::int64_t)> onBytes;
  };
  static constexpr std::chrono::milliseconds kLongestWait{8};

  /// Scans a text. Throws what the source throws, and RunTimeError 6 when a counter overflows.
  void Scan(ByteSource& source, const Callbacks& callbacks);

 private:
  /// What is read at once stays in the cache nearest to the processor.
  static constexpr std::size_t kReadsPerPiece = 4;

  void Begin(ByteSource& source, LinePieces& pieces);
  void PlaceAhead();
  [[nodiscard]] bool TakePlaced(const PiecePool::Piece& first);
  void ReadAhead(LinePieces& pieces);
  void JoinFirst();
  [[nodiscard]] bool CanJoin(const PiecePool::Piece& piece) const;
  void ScanHere(std::string_view text);
  [[nodiscard]] bool ScanLongLine(LinePieces& pieces, const Callbacks& callbacks);

  /// Asks the callback from time to time.
  class CallbackYield final : public ScanYield {
   public:
    bool Yield() override { return YieldFor(1); }
    [[nodiscard]] std::uint32_t CallsLeft() const override { return kWordsPerCall; }
    bool YieldFor(std::uint32_t calls) override {
      words += calls;
      if (words >= kWordsPerCall) Ask();
      return stopped;
    }
    void Ask() {
      words = 0;
      stopped = stopped || (*yield)();
    }

    const std::function<bool()>* yield = nullptr;
    std::uint32_t words = 0;
    bool stopped = false;

   private:
    /// So many take some microseconds.
    static constexpr std::uint32_t kWordsPerCall = 1024;
  };

  Target target_;
  std::size_t pieceBytes_;
  PiecePool pool_;
  /// By the number of the pool's scanner.
  std::vector<PieceJoiner> joiners_;
  /// Memory for pieces.
  std::vector<TextPiece> spareTexts_;
  /// Of the text that is scanned.
  ByteSource* source_ = nullptr;
  /// While it is read by those who scan it.
  std::optional<PlacedPieces> placed_;
  /// The pieces in the pool are such.
  bool arePlaced_ = false;
  OpenCommentFinder openComments_;
  /// Open in front of the next piece that is read.
  int nextOpen_ = -1;
  /// Whether that may be guessed: until a guess is wrong.
  bool guesses_ = true;
  /// Pieces wait whose guesses go back to a wrong one.
  bool hasGuessedWrong_ = false;
  const ScanChoices& choices_;
  const WordLists& lists_;
  CallbackYield yield_;
  /// For what is scanned here.
  WordScanner scanner_;
  /// The start of a long line, which is next.
  std::optional<TextPiece> longLine_;
  bool sourceEnded_ = false;
  std::exception_ptr readError_;
};

}  // namespace quillomat
