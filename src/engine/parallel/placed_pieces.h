// A text that lies still, in pieces of whole lines: who scans a piece reads it, too, a small buffer
// at a time. So no thread waits for another to read, and what was read is still in the cache of the
// processor that scans it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "base/byte_source.h"

namespace quillomat {

/// The bytes from `begin` to `end`, which outlive it: whole lines.
struct PlacedPiece {
  const PlacedBytes* bytes = nullptr;
  std::int64_t begin = 0;
  std::int64_t end = 0;
};

/// Cuts the rest of a text into such pieces.
class PlacedPieces {
 public:
  /// Pieces are to have up to eight times `pieceBytes`, and fewer towards the end, so that all
  /// `threads` end at nearly the same time.
  PlacedPieces(const PlacedRest& rest, std::size_t threads, std::size_t pieceBytes)
      : rest_(rest), threads_(threads), pieceBytes_(static_cast<std::int64_t>(pieceBytes)) {}

  /// The next piece. Nothing behind the last line end, where no line ends within reach, and where
  /// the bytes cannot be read.
  [[nodiscard]] std::optional<PlacedPiece> Next();
  /// What stands at the end of the last piece: many lines if it has many.
  [[nodiscard]] std::string_view LastLines() const { return lastLines_; }

 private:
  [[nodiscard]] bool ReadBefore(std::int64_t end, std::int64_t bytes);

  PlacedRest rest_;
  std::size_t threads_;
  std::int64_t pieceBytes_;
  std::vector<char> memory_;
  std::string_view lastLines_;
};

/// Reads a piece, some of its lines at a time.
class PlacedLines {
 public:
  /// The memory, which outlives this, is used for what is read: about `bytesAtOnce`.
  PlacedLines(const PlacedPiece& piece, std::vector<char>& memory, std::size_t bytesAtOnce)
      : left_(piece), memory_(memory), bytesAtOnce_(bytesAtOnce) {}

  /// The next whole lines; empty at the end. They are good until the next call. Throws
  /// RunTimeError when they cannot be read, or are not there any more.
  [[nodiscard]] std::string_view Next();

 private:
  PlacedPiece left_;
  std::vector<char>& memory_;
  std::size_t bytesAtOnce_;
  /// So many bytes were given out last, and so many were read.
  std::size_t given_ = 0;
  std::size_t read_ = 0;
};

}  // namespace quillomat
