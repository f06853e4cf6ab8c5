// Cuts a text into pieces of whole lines, so that they can be scanned by themselves.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_source.h"
#include "base/line_decoder.h"

namespace quillomat {

/// Whole lines of a text in memory of their own, which can be used again for the next.
struct TextPiece {
  std::vector<char> memory;
  /// So many bytes at the front of the memory are the text.
  std::size_t bytes = 0;

  [[nodiscard]] std::string_view Text() const { return {memory.data(), bytes}; }
};

/// The place behind the last line end of `text`; 0 when there is none. A carriage return at the
/// very end is none yet: its line feed may follow.
[[nodiscard]] std::size_t BehindLastLineEnd(std::string_view text);

/// The bytes of `lines`, with two for every line end, whichever it is.
[[nodiscard]] std::int64_t BytesWithLongLineEnds(std::string_view lines);

class LinePieces {
 public:
  static constexpr std::size_t kPieceBytes = std::size_t{512} * 1024;

  /// `source` must outlive the pieces' reader. A byte-order mark is dropped, UTF-16 becomes UTF-8.
  explicit LinePieces(ByteSource& source, std::size_t pieceBytes = kPieceBytes)
      : source_(source), pieceBytes_(pieceBytes) {}

  /// The source is not at its start any more: bytes were skipped.
  void BeginInside() { source_.BeginInside(); }

  /// Puts the next piece into `piece`; false when there is none. A piece has about as many bytes as
  /// were asked for, more only when one line has more, fewer when no more come for now. It ends
  /// behind a line end, the last one with the text. Passes on what the source throws, when the
  /// lines before have been given.
  ///
  /// With `cutLongLines`, a line with more than twice as many bytes comes in pieces of its own,
  /// from one that begins with it to one that ends with it: see IsInLongLine.
  [[nodiscard]] bool Next(TextPiece& piece, bool cutLongLines = false);
  /// Whether the line with which the last piece ended goes on in the next.
  [[nodiscard]] bool IsInLongLine() const { return inLongLine_; }

  /// Whether there is more to read, or the end; waits no longer than `longest`.
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const {
    return ended_ || source_.IsReady(longest);
  }

 private:
  void EndLongLine(TextPiece& piece);
  [[nodiscard]] bool ReadMore(TextPiece& piece);
  [[nodiscard]] std::size_t Read(std::span<char> buffer);

  UnmarkedSource source_;
  std::size_t pieceBytes_;
  /// What was read behind the end of the last piece.
  std::string rest_;
  bool ended_ = false;
  bool inLongLine_ = false;
  std::exception_ptr error_;
};

}  // namespace quillomat
