#include "sources/text_reader.h"

#include "base/letter_case.h"
#include "base/line_decoder.h"
#include "base/text_helpers.h"
#include "system/paths.h"

namespace quillomat {
namespace {

/// In BytesWithLongLineEnds.
constexpr std::int64_t kLineEndBytes = 2;

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
    settings.SetCommentMarkers(IsHtmlLike(extension) ? "HTML" : "C", choices);
  } else {
    settings.SetCommentMarkers(IsSet(choices.allowCommentMarkers) ? "user" : "", choices);
  }
}

void TextReader::ReadPiece(std::string_view text) {
  scanner_.SetWordsRead(target_.wordsRead);
  scanner_.GetWords(PrepareLine(text, IsSet(choices_.caseSignificant), buffer_));
  target_.wordsRead = scanner_.WordsRead();
}

void TextReader::ReadPlainLines(std::string_view lines) {
  scanner_.SetWordsRead(target_.wordsRead);
  scanner_.GetWordsOfLines(lines);
  target_.wordsRead = scanner_.WordsRead();
}

void TextReader::ReadLine(std::string_view line) {
  const std::string_view trimmed = TrimBlanks(line);
  if (!trimmed.empty()) ReadPiece(trimmed);
}

void TextReader::ReadLines(ByteSource& source, const OnBytes& onBytes) {
  LineDecoder lines(source);
  for (;;) {
    const std::string_view ahead = lines.NextLines();
    const std::size_t plainBytes = scanner_.PlainLineBytes(ahead);
    if (plainBytes > 0) {
      const std::string_view plain = ahead.substr(0, plainBytes);
      if (onBytes) onBytes(BytesWithLongLineEnds(plain));
      ReadPlainLines(plain);
      lines.SkipLines(plainBytes);
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
