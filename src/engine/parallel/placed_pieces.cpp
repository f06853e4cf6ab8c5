#include "engine/parallel/placed_pieces.h"

#include <algorithm>
#include <span>

#include "base/run_time_error.h"
#include "engine/parallel/line_pieces.h"

namespace quillomat {
namespace {

// In parts of a usual piece.
constexpr std::int64_t kLargest = 8;
constexpr std::int64_t kPartsOfSmallest = 2;
constexpr std::int64_t kWindowPart = 64;
/// A line end is looked for in a second window that is so much larger.
constexpr std::int64_t kSecondWindow = 8;
/// So many pieces for each thread would make up what is left.
constexpr std::int64_t kPiecesLeft = 2;

}  // namespace

std::optional<PlacedPiece> PlacedPieces::Next() {
  const std::int64_t left = rest_.end - rest_.begin;
  if (left <= 0) return std::nullopt;
  const std::int64_t smallest = pieceBytes_ / kPartsOfSmallest + 1;
  const std::int64_t share = left / (kPiecesLeft * static_cast<std::int64_t>(threads_));
  const std::int64_t wanted = std::clamp(share, smallest, kLargest * pieceBytes_);
  const std::int64_t window = pieceBytes_ / kWindowPart + 1;
  const std::int64_t end = left < wanted + smallest ? rest_.end : rest_.begin + wanted;
  std::size_t behind = 0;
  for (const std::int64_t bytes : {window, kSecondWindow * window}) {
    if (!ReadBefore(end, std::min(bytes, end - rest_.begin))) return std::nullopt;
    behind = BehindLastLineEnd(lastLines_);
    if (behind > 0) break;
  }
  if (behind == 0) return std::nullopt;
  PlacedPiece piece{&rest_.bytes, rest_.begin, end};
  piece.end -= static_cast<std::int64_t>(lastLines_.size() - behind);
  lastLines_ = lastLines_.substr(0, behind);
  rest_.begin = piece.end;
  return piece;
}

/// Reads the last lines.
bool PlacedPieces::ReadBefore(std::int64_t end, std::int64_t bytes) {
  const auto wanted = static_cast<std::size_t>(bytes);
  if (memory_.size() < wanted) memory_.resize(wanted);
  lastLines_ = {memory_.data(), wanted};
  try {
    return rest_.bytes.ReadAt(end - bytes, std::span(memory_).first(wanted)) == wanted;
  } catch (const RunTimeError&) {
    return false;
  }
}

std::string_view PlacedLines::Next() {
  std::copy(memory_.begin() + static_cast<std::ptrdiff_t>(given_),
            memory_.begin() + static_cast<std::ptrdiff_t>(read_), memory_.begin());
  read_ -= given_;
  given_ = 0;
  while (left_.begin < left_.end) {
    if (memory_.size() < read_ + bytesAtOnce_) memory_.resize(read_ + bytesAtOnce_);
    const auto left = static_cast<std::size_t>(left_.end - left_.begin);
    const auto room = std::span(memory_).subspan(read_, std::min(left, bytesAtOnce_));
    const std::size_t bytes = left_.bytes->ReadAt(left_.begin, room);
    if (bytes == 0) throw RunTimeError(RunTimeErrorNumber::kDeviceIo);
    read_ += bytes;
    left_.begin += static_cast<std::int64_t>(bytes);
    const std::string_view text(memory_.data(), read_);
    given_ = left_.begin == left_.end ? read_ : BehindLastLineEnd(text);
    if (given_ > 0) break;
  }
  return {memory_.data(), given_};
}

}  // namespace quillomat
