#include "engine/parallel/threaded_scan.h"

#include <utility>

#include "base/checked_count.h"

namespace quillomat {

void ThreadedScan::Scan(ByteSource& source, const Callbacks& callbacks) {
  LinePieces pieces(source, pieceBytes_);
  nextOpen_ = target_.settings.OpenComment;
  sourceEnded_ = false;
  readError_ = nullptr;
  try {
    for (ReadAhead(pieces); pool_.Pieces() > 0; ReadAhead(pieces)) {
      while (!pool_.WaitForFirst(kLongestWait)) {
        if (callbacks.yield()) return pool_.Clear();
      }
      callbacks.onBytes(pool_.First().count.bytesWithLongLineEnds);
      JoinFirst();
      if (callbacks.yield()) return pool_.Clear();
    }
  } catch (...) {
    pool_.Clear();
    throw;
  }
  if (readError_) std::rethrow_exception(readError_);
}

/// So many pieces that no thread waits for work while one is joined. What was read before an error
/// is counted first.
void ThreadedScan::ReadAhead(LinePieces& pieces) {
  while (!sourceEnded_ && pool_.Pieces() < 2 * pool_.Threads()) {
    TextPiece text;
    if (!spareTexts_.empty()) {
      text = std::move(spareTexts_.back());
      spareTexts_.pop_back();
    }
    try {
      sourceEnded_ = !pieces.Next(text);
    } catch (...) {
      readError_ = std::current_exception();
      sourceEnded_ = true;
    }
    if (sourceEnded_) return;
    ScanSettings settings = target_.settings;
    settings.OpenComment = nextOpen_;
    nextOpen_ = openComments_.Behind(text.Text(), settings);
    pool_.Submit(std::move(text), settings);
  }
}

void ThreadedScan::JoinFirst() {
  const PiecePool::Piece& first = pool_.First();
  AddChecked(target_.wordsRead, first.count.wordsRead);
  joiners_[first.scanner].Join(first.count, target_.store);
  target_.settings.OpenComment = first.count.openComment;
  spareTexts_.push_back(pool_.DropFirst());
}

}  // namespace quillomat
