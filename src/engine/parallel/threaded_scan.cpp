#include "engine/parallel/threaded_scan.h"

#include <array>
#include <limits>
#include <string_view>
#include <utility>

#include "base/checked_count.h"
#include "base/run_time_error.h"
#include "engine/lent_words_read.h"
#include "engine/long_line.h"
#include "engine/whole_lines.h"

namespace quillomat {
namespace {

/// How many bytes the mark has with which a text starts that lies still; nothing where the text
/// does not, or is UTF-16.
std::optional<std::size_t> MarkBytesOfPlaced(const ByteSource& source) {
  const std::optional<PlacedRest> rest = source.Rest();
  if (!rest) return std::nullopt;
  std::array<char, 3> head{};
  std::size_t bytes = 0;
  try {
    bytes = rest->bytes.ReadAt(rest->begin, head);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
  const std::string_view start(head.data(), bytes);
  if (bytes < head.size() || start.starts_with("\xFE\xFF") || start.starts_with("\xFF\xFE")) {
    return std::nullopt;
  }
  return start == "\xEF\xBB\xBF" ? head.size() : 0;
}

/// Whether a text that lies still has been read to its end.
bool IsAtEnd(const ByteSource& source) {
  const std::optional<PlacedRest> rest = source.Rest();
  std::array<char, 1> next{};
  try {
    return rest && rest->bytes.ReadAt(rest->begin, next) == 0;
  } catch (const RunTimeError&) {
    return false;  // as it will say when it is read
  }
}

}  // namespace

void ThreadedScan::Scan(ByteSource& source, const Callbacks& callbacks) {
  LinePieces pieces(source, pieceBytes_);
  yield_.yield = &callbacks.yield;
  Begin(source, pieces);
  try {
    for (ReadAhead(pieces); pool_.Pieces() > 0 || longLine_; ReadAhead(pieces)) {
      if (pool_.Pieces() == 0) {
        if (ScanLongLine(pieces, callbacks)) return;
        continue;
      }
      while (!pool_.WaitForFirst(kLongestWait)) {
        if (callbacks.yield()) return pool_.Clear();
      }
      const PiecePool::Piece& first = pool_.First();
      if (first.placed && !TakePlaced(first)) continue;
      callbacks.onBytes(first.count.bytesWithLongLineEnds);
      JoinFirst();
      if (callbacks.yield()) return pool_.Clear();
    }
  } catch (...) {
    pool_.Clear();
    throw;
  }
  if (readError_) std::rethrow_exception(readError_);
}

void ThreadedScan::Begin(ByteSource& source, LinePieces& pieces) {
  nextOpen_ = target_.settings.OpenComment;
  guesses_ = true;
  hasGuessedWrong_ = false;
  sourceEnded_ = false;
  readError_ = nullptr;
  longLine_.reset();
  yield_.stopped = false;
  source_ = &source;
  placed_.reset();
  const std::optional<std::size_t> markBytes = MarkBytesOfPlaced(source);
  arePlaced_ = markBytes.has_value();
  if (!arePlaced_) return;
  source.Skip(static_cast<std::int64_t>(*markBytes));
  pieces.BeginInside();
  placed_.emplace(*source.Rest(), pool_.Threads(), pieceBytes_);
}

/// Hands over pieces of a text that lies still.
void ThreadedScan::PlaceAhead() {
  while (placed_ && pool_.Pieces() < 2 * pool_.Threads()) {
    const std::optional<PlacedPiece> piece = placed_->Next();
    if (!piece) return placed_.reset();
    ScanSettings settings = target_.settings;
    settings.OpenComment = nextOpen_;
    nextOpen_ = openComments_.LikelyBehind(placed_->LastLines(), settings);
    pool_.Submit(*piece, settings);
  }
}

/// Passes over the first piece in the source, if it can be joined. Otherwise false: then the text
/// is read on from there as any other.
bool ThreadedScan::TakePlaced(const PiecePool::Piece& first) {
  if (!first.failed && CanJoin(first)) {
    source_->Skip(first.placed->end - first.placed->begin);
    return true;
  }
  guesses_ = first.failed;
  placed_.reset();
  pool_.Clear();
  nextOpen_ = target_.settings.OpenComment;
  return false;
}

/// So many pieces that no thread waits for work while one is joined; but nobody waits for more of a
/// text as long as there is something to be joined. What was read before an error
/// is counted first.
void ThreadedScan::ReadAhead(LinePieces& pieces) {
  if (hasGuessedWrong_) {
    if (pool_.Pieces() > 0) return;
    hasGuessedWrong_ = false;
    nextOpen_ = target_.settings.OpenComment;
  }
  if (arePlaced_) {
    PlaceAhead();
    if (pool_.Pieces() > 0) return;  // the source stands in front of the first
    arePlaced_ = false;
    sourceEnded_ = IsAtEnd(*source_);  // which costs less than to make room for more
  }
  while (!sourceEnded_ && !longLine_ && pool_.Pieces() < 2 * pool_.Threads()) {
    if (pool_.Pieces() > 0 && !pieces.IsReady(kLongestWait)) return;
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
    nextOpen_ = guesses_ ? openComments_.LikelyBehind(text.Text(), settings)
                         : openComments_.Behind(text.Text(), settings);
    pool_.Submit(std::move(text), settings);
  }
}

/// Behind all pieces that were read before it. True when the scan is to stop.
bool ThreadedScan::ScanLongLine(LinePieces& pieces, const Callbacks& callbacks) {
  TextPiece part = std::move(*longLine_);
  longLine_.reset();
  scanner_.SetWordsRead(target_.wordsRead);
  LongLine line({target_.settings, choices_, lists_, target_.store, yield_, scanner_});
  bool more = true;
  for (; more && !yield_.stopped; yield_.Ask()) {
    const std::string_view text = part.Text();
    callbacks.onBytes(BytesWithLongLineEnds(text));
    line.Take(text.substr(0, FindLineEnd(text)));
    target_.wordsRead = scanner_.WordsRead();  // whatever becomes of the rest
    more = pieces.IsInLongLine() && pieces.Next(part);
  }
  if (more) {
    line.BreakOff();
  } else {
    line.End();
  }
  target_.wordsRead = scanner_.WordsRead();
  nextOpen_ = target_.settings.OpenComment;
  spareTexts_.push_back(std::move(part));
  return yield_.stopped;
}

/// A piece that was scanned with a wrong guess is scanned again, and so are those whose words have
/// numbers from it.
void ThreadedScan::JoinFirst() {
  const PiecePool::Piece& first = pool_.First();
  PieceJoiner& joiner = joiners_[first.scanner];
  if (CanJoin(first)) {
    AddChecked(target_.wordsRead, first.count.wordsRead);
    joiner.Join(first.count, target_.store);
    target_.settings.OpenComment = first.count.openComment;
    target_.settings.Uncounted += first.count.uncounted;
  } else {
    guesses_ = false;
    hasGuessedWrong_ = true;
    joiner.LeaveOut();
    pool_.ForgetWords(first.scanner);
    ScanHere(first.text.Text());
  }
  TextPiece text = pool_.DropFirst();
  if (!text.memory.empty()) spareTexts_.push_back(std::move(text));
}

bool ThreadedScan::CanJoin(const PiecePool::Piece& piece) const {
  const PieceCount& count = piece.count;
  const bool wasGuessed =
      !count.looksForComments || count.openBefore == target_.settings.OpenComment;
  // A counter that overflows does so at its place.
  const bool isInRange =
      count.wordsRead <= std::numeric_limits<std::int32_t>::max() - target_.wordsRead;
  return wasGuessed && isInRange && joiners_[piece.scanner].CanJoin(count, target_.store);
}

void ThreadedScan::ScanHere(std::string_view text) {
  const LentWordsRead lent(target_.wordsRead, scanner_);
  ScanWholeLines({target_.settings, choices_, lists_, target_.store, yield_, scanner_}, text);
}

}  // namespace quillomat
