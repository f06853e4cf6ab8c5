#include "sources/line_endings.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include "base/byte_source.h"
#include "base/line_decoder.h"
#include "base/run_time_error.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

constexpr std::size_t kPieceBytes = 16'384;

struct SeenBreaks {
  bool lineFeed = false;
  bool carriageReturn = false;
};

/// Notes the line breaks of `piece`; false when there is a control character. Looks at all of it,
/// so that many bytes are looked at together.
bool NoteBreaks(std::string_view piece, SeenBreaks& seen) {
  unsigned char lineFeeds = 0;
  unsigned char returns = 0;
  unsigned char controls = 0;
  for (const char ch : piece) {
    const auto lineFeed = static_cast<unsigned char>(ch == '\n');
    const auto carriageReturn = static_cast<unsigned char>(ch == '\r');
    const auto tab = static_cast<unsigned char>(ch == '\t');
    const auto below = static_cast<unsigned char>(static_cast<unsigned char>(ch) < 32);
    lineFeeds = static_cast<unsigned char>(lineFeeds | lineFeed);
    returns = static_cast<unsigned char>(returns | carriageReturn);
    controls = static_cast<unsigned char>(controls | (below ^ lineFeed ^ carriageReturn ^ tab));
  }
  seen.lineFeed = seen.lineFeed || lineFeeds != 0;
  seen.carriageReturn = seen.carriageReturn || returns != 0;
  return controls == 0;
}

}  // namespace

LineEndingType LineEndingTypeOf(std::string_view head, std::size_t maximum) {
  TextSource file(head);
  UnmarkedSource text(file);
  std::array<char, kPieceBytes> piece{};
  SeenBreaks seen;
  for (std::size_t left = maximum; left > 0;) {
    const std::size_t bytes = text.Read(std::span(piece).first(std::min(left, piece.size())));
    if (bytes == 0) break;
    if (!NoteBreaks({piece.data(), bytes}, seen)) return LineEndingType::kNotText;
    left -= bytes;
  }
  if (seen.carriageReturn == seen.lineFeed) return LineEndingType::kDos;
  return seen.lineFeed ? LineEndingType::kUnix : LineEndingType::kMacintosh;
}

LineEndingType GetLineEndingType(const std::string& path, std::size_t maximum) {
  std::optional<InputFile> file;
  try {
    file.emplace(path);
  } catch (const RunTimeError&) {
    return FileExists(path) ? LineEndingType::kCannotBeOpened : LineEndingType::kNotFound;
  }
  if (file->Length() == 0 && FileLength(path) == 0) return LineEndingType::kZeroLength;
  return LineEndingTypeOf(file->Ahead(HeadBytes(maximum)), maximum);
}

}  // namespace quillomat
