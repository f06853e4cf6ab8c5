#include "engine/parallel/threaded_scan.h"

#include <utility>

#include "base/checked_count.h"
#include "engine/long_line.h"

namespace quillomat {

void ThreadedScan::Scan(ByteSource& source, const Callbacks& callbacks) {
  LinePieces pieces(source, pieceBytes_);
  nextOpen_ = target_.settings.OpenComment;
  sourceEnded_ = false;
  readError_ = nullptr;
  longLine_.reset();
  yield_.yield = &callbacks.yield;
  yield_.stopped = false;
  try {
    for (ReadAhead(pieces); pool_.Pieces() > 0 || longLine_; ReadAhead(pieces)) {
      if (pool_.Pieces() == 0) {
        if (ScanLongLine(pieces, callbacks)) return;
        continue;
      }
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
  while (!sourceEnded_ && !longLine_ && pool_.Pieces() < 2 * pool_.Threads()) {
    TextPiece text;
    if (!spareTexts_.empty()) {
      text = std::move(spareTexts_.back());
      spareTexts_.pop_back();
    }
    try {
      sourceEnded_ = !pieces.Next(text, scanner_.CanTakeParts());
    } catch (...) {
      readError_ = std::current_exception();
      sourceEnded_ = true;
    }
    if (sourceEnded_) return;
    if (pieces.IsInLongLine()) {
      longLine_ = std::move(text);
      return;
    }
    ScanSettings settings = target_.settings;
    settings.OpenComment = nextOpen_;
    nextOpen_ = openComments_.Behind(text.Text(), settings);
    pool_.Submit(std::move(text), settings);
  }
}

/// Behind all pieces that were read before it. True when the scan is to stop.
bool ThreadedScan::ScanLongLine(LinePieces& pieces, const Callbacks& callbacks) {
  TextPiece part = std::move(*longLine_);
  longLine_.reset();
  scanner_.SetWordsRead(target_.wordsRead);
  LongLine line({target_.settings, choices_, lists_, target_.store, yield_, scanner_});
  for (bool more = true; more && !yield_.stopped; yield_.Ask()) {
    const std::string_view text = part.Text();
    callbacks.onBytes(BytesWithLongLineEnds(text));
    line.Take(text.substr(0, FindLineEnd(text)));
    target_.wordsRead = scanner_.WordsRead();  // whatever becomes of the rest
    more = pieces.IsInLongLine() && pieces.Next(part);
  }
  line.End();
  target_.wordsRead = scanner_.WordsRead();
  nextOpen_ = target_.settings.OpenComment;
  spareTexts_.push_back(std::move(part));
  return yield_.stopped;
}

void ThreadedScan::JoinFirst() {
  const PiecePool::Piece& first = pool_.First();
  AddChecked(target_.wordsRead, first.count.wordsRead);
  joiners_[first.scanner].Join(first.count, target_.store);
  target_.settings.OpenComment = first.count.openComment;
  spareTexts_.push_back(pool_.DropFirst());
}

}  // namespace quillomat
