#include "sources/text_reader.h"

#include <utility>

#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "engine/lent_words_read.h"
#include "engine/long_line.h"
#include "system/paths.h"

namespace quillomat {
namespace {

/// In BytesWithLongLineEnds.
constexpr std::int64_t kLineEndBytes = 2;
/// The bytes of a long line are told of when they have become so many.
constexpr std::int64_t kBytesWorthTelling = std::int64_t{64} * 1024;

bool IsHtmlLike(std::string_view extension) {
  return extension.find("htm") != std::string_view::npos || extension == "php" ||
         extension == "xml";
}

bool IsCLike(std::string_view extension) {
  return extension == "cpp" || extension == "c";
}

}  // namespace

void LoadMarkersFor(std::string_view path, const ScanChoices& choices, ScanSettings& settings) {
  const std::string extension = LowerCase(ExtensionOf(path));
  settings.ForceCommentMarkers = IsHtmlLike(extension) || IsCLike(extension);
  if (settings.ForceCommentMarkers) {
    settings.SetCommentMarkers(IsHtmlLike(extension) ? kHtmlPreset : kCPreset, choices);
  } else {
    settings.SetCommentMarkers(IsSet(choices.allowCommentMarkers) ? kUserPreset : kNoPreset,
                               choices);
  }
}

void TextReader::ReadPiece(std::string_view text) {
  const LentWordsRead lent(target_.wordsRead, scanner_);
  scanner_.GetWords(PrepareLine(text, IsSet(choices_.caseSignificant), buffer_, choices_.letters));
}

void TextReader::ReadPlainLines(std::string_view lines) {
  const LentWordsRead lent(target_.wordsRead, scanner_);
  scanner_.GetWordsOfLines(lines);
}

void TextReader::ReadLine(std::string_view line) {
  const std::string_view trimmed = TrimBlanks(line);
  if (!trimmed.empty()) ReadPiece(trimmed);
}

/// Part by part, if the line is long and its markers let it be; false otherwise.
bool TextReader::ReadLongLine(LineDecoder& lines, const OnBytes& onBytes) {
  if (!lines.IsAtLongLine() || !scanner_.CanTakeParts()) return false;
  scanner_.SetWordsRead(target_.wordsRead);
  LongLine line({target_.settings, choices_, lists_, target_.store, yield_, scanner_});
  std::int64_t untold = 0;
  bool stops = false;
  for (std::string_view part = lines.NextPartOfLine(); !part.empty() && !stops;
       part = lines.NextPartOfLine()) {
    if (untold >= kBytesWorthTelling && onBytes) onBytes(std::exchange(untold, 0));
    untold += static_cast<std::int64_t>(part.size());
    line.Take(part);
    target_.wordsRead = scanner_.WordsRead();  // whatever becomes of the rest
    stops = yield_.Yield();
  }
  if (stops) {
    line.BreakOff();
  } else {
    line.End();
  }
  if (onBytes) onBytes(untold + kLineEndBytes);
  target_.wordsRead = scanner_.WordsRead();
  return true;
}

void TextReader::ReadLines(ByteSource& source, const OnBytes& onBytes) {
  LineDecoder lines(source);
  lines.CountLinesNotUtf8In(target_.settings.Uncounted.linesNotUtf8);
  for (;;) {
    const std::string_view ahead = lines.NextLines();
    const std::size_t plainBytes = scanner_.PlainLineBytes(ahead);
    if (plainBytes > 0) {
      const std::string_view plain = ahead.substr(0, plainBytes);
      if (onBytes) onBytes(BytesWithLongLineEnds(plain));
      ReadPlainLines(plain);
      lines.SkipLines(plainBytes);
    } else if (ReadLongLine(lines, onBytes)) {
      // Its bytes have been told of.
    } else if (const auto line = lines.NextLine()) {
      if (onBytes) onBytes(static_cast<std::int64_t>(line->size()) + kLineEndBytes);
      ReadLine(*line);
    } else {
      return;
    }
    if (yield_.Yield()) return;
  }
}

void TextReader::ReadLinesOnThreads(ByteSource& source, const OnBytes& onBytes) {
  if (!threadedScan_) threadedScan_.emplace(target_, choices_, lists_, threads_);
  const auto tell = [&onBytes](std::int64_t bytes) {
    if (onBytes) onBytes(bytes);
  };
  threadedScan_->Scan(source, {[this] { return yield_.YieldFor(yield_.CallsLeft()); }, tell});
}

}  // namespace quillomat
