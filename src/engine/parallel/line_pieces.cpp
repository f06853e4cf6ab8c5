#include "engine/parallel/line_pieces.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// Whoever is silent for longer makes others wait.
constexpr std::chrono::milliseconds kMoment{8};

}  // namespace

std::size_t BehindLastLineEnd(std::string_view text) {
  if (const std::size_t lineFeed = text.rfind('\n'); lineFeed != std::string_view::npos) {
    return lineFeed + 1;
  }
  return text.empty() ? 0 : text.substr(0, text.size() - 1).rfind('\r') + 1;
}

std::int64_t BytesWithLongLineEnds(std::string_view lines) {
  std::size_t lineEnds = CountOf('\n', lines);
  if (lines.find('\r') != std::string_view::npos) {
    lineEnds += CountOf('\r', lines);
    for (std::size_t i = 1; i < lines.size(); ++i) {
      if (lines[i - 1] == '\r' && lines[i] == '\n') lineEnds -= 2;
    }
  }
  return static_cast<std::int64_t>(lines.size() + lineEnds);
}

bool LinePieces::Next(TextPiece& piece, bool cutLongLines) {
  if (piece.memory.size() < rest_.size()) piece.memory.resize(rest_.size());
  std::ranges::copy(rest_, piece.memory.begin());
  piece.bytes = rest_.size();
  rest_.clear();
  if (inLongLine_) {
    if (piece.bytes < pieceBytes_) (void)ReadMore(piece);
    EndLongLine(piece);
    return piece.bytes > 0;
  }
  std::size_t searched = 0;
  while (!ended_ && ReadMore(piece)) {
    const std::size_t behind = BehindLastLineEnd(piece.Text().substr(searched));
    if (behind == 0) {  // a long line
      // A carriage return at the very end may end the line.
      inLongLine_ = cutLongLines && piece.bytes > 2 * pieceBytes_ && !piece.Text().ends_with('\r');
      if (inLongLine_) return true;
      searched = piece.bytes - 1;
      continue;
    }
    const std::size_t end = searched + behind;
    rest_ = piece.Text().substr(end);
    piece.bytes = end;
    return true;
  }
  if (error_) {
    piece.bytes = BehindLastLineEnd(piece.Text());
    if (piece.bytes == 0) std::rethrow_exception(error_);
  }
  return piece.bytes > 0;
}

/// Cuts the piece off behind the end of its line, if that is there.
void LinePieces::EndLongLine(TextPiece& piece) {
  const std::string_view text = piece.Text();
  const std::size_t lineBytes = FindLineEnd(text);
  inLongLine_ = lineBytes == text.size() && !ended_;
  if (lineBytes == text.size()) return;
  rest_ = text.substr(lineBytes + 1);
  piece.bytes = lineBytes + 1;
}

/// Fills the piece up, as long as the source has something, and lets one that is full grow by half
/// of its size, so that a long line costs no more than its bytes. False at the end.
bool LinePieces::ReadMore(TextPiece& piece) {
  const std::size_t grown = piece.bytes + std::max(pieceBytes_, piece.bytes) / 2 + 1;
  const std::size_t wanted = std::max(pieceBytes_, grown);
  if (piece.memory.size() < wanted) piece.memory.resize(wanted);
  while (!ended_ && piece.bytes < wanted) {
    const std::size_t bytes =
        Read(std::span(piece.memory).subspan(piece.bytes, wanted - piece.bytes));
    piece.bytes += bytes;
    ended_ = bytes == 0;
    if (!ended_ && piece.bytes < wanted && !source_.IsReady(kMoment)) break;
  }
  return !ended_;
}

/// 0 at the end, and behind an error.
std::size_t LinePieces::Read(std::span<char> buffer) {
  try {
    return source_.Read(buffer);
  } catch (...) {
    error_ = std::current_exception();
    return 0;
  }
}

}  // namespace quillomat
