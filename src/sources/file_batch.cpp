#include "sources/file_batch.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <span>
#include <string_view>

#include "base/byte_source.h"
#include "sources/converted_source.h"
#include "sources/encoding_guess.h"
#include "sources/line_endings.h"
#include "sources/text_pass.h"
#include "sources/text_reader.h"

namespace quillomat {

std::size_t FileScanner::Take(std::vector<WalkItem>& items, int& openComment, std::size_t& bytes) {
  opened_ = 0;
  std::size_t taken = 0;
  for (; taken < items.size() && bytes < batchBytes_ && !stop_; ++taken) {
    WalkItem& item = items[taken];
    if (!item.forThreads) continue;
    try {
      TakeFile(item, openComment);
    } catch (const std::exception&) {
      item.state = WalkItem::State::kLeftAlone;
      item.file.reset();
      item.report.uncounted = {};
      scanner_.ForgetWords();  // which may be half a word
    }
    bytes += static_cast<std::size_t>(item.report.bytesRead);
  }
  return taken;
}

void FileScanner::TakeFile(WalkItem& item, int& openComment) {
  if (opened_ == kMostOpened) return;
  item.file = std::make_unique<InputFile>(item.report.path);
  item.bytes = item.file->Length();
  if (item.bytes == 0) return TakeOpened(item);
  item.report.bytes = item.bytes;
  const std::unique_ptr<InputFile> file = std::move(item.file);
  if (item.bytes >= TextReader::kBytesWorthThreads) return;
  // A file that is no text is not read to its end.
  const std::size_t headBytes = HeadBytesFor(request_.encoding);
  const auto length = static_cast<std::size_t>(item.bytes);
  if (memory_.size() <= length) memory_.resize(length + 1);
  bytesRead_ = 0;
  Read(*file, std::min(headBytes, length), std::min(headBytes, length + 1));
  const std::string_view head(memory_.data(), std::min(headBytes, bytesRead_));
  if (!JudgeText(head, request_.encoding, item.report)) {
    item.state = WalkItem::State::kRefused;
    return;
  }
  Read(*file, length, length + 1);
  if (bytesRead_ > length) return;  // it has grown meanwhile
  item.report.identity = file->Identity();
  Scan(item, openComment);
}

/// A file without a length: an empty one, unless it is something else.
void FileScanner::TakeOpened(WalkItem& item) {
  using std::chrono::milliseconds;
  if (item.file->IsReady(milliseconds::zero()) && item.file->Ahead(1).empty()) {
    item.state = WalkItem::State::kRefused;
    item.report.refusal = Refusal::kEmpty;
    item.file.reset();
    return;
  }
  item.state = WalkItem::State::kOpened;
  ++opened_;
}

/// Reads on until `atLeast` bytes are there, or all.
void FileScanner::Read(InputFile& file, std::size_t atLeast, std::size_t atMost) {
  while (bytesRead_ < atLeast) {
    const std::size_t bytes =
        file.Read(std::span(memory_).subspan(bytesRead_, atMost - bytesRead_));
    if (bytes == 0) return;
    bytesRead_ += bytes;
  }
}

/// What was read as text, whose last line has an end.
std::string_view FileScanner::Lines(FileReport& report) {
  constexpr std::size_t kMarkBytes = 3;
  const std::string_view bytes(memory_.data(), bytesRead_);
  const bool guesses = request_.encoding == CharacterSet::kGuess;
  if (guesses && report.convertedFrom == CharacterSet::kAsFound) {
    report.convertedFrom = LateGuessOfWhole(bytes);
  }
  if (report.convertedFrom != CharacterSet::kAsFound) {
    converted_ = ConvertedText(bytes, report.convertedFrom, report.uncounted.bytesNotDecoded);
    if (!converted_.ends_with('\n')) converted_.push_back('\n');
    return converted_;
  }
  const std::size_t start = report.encoding == TextEncoding::kUtf8WithMark ? kMarkBytes : 0;
  const bool ends = bytesRead_ == start || memory_[bytesRead_ - 1] == '\n';
  if (!ends) memory_[bytesRead_] = '\n';
  return {memory_.data() + start, bytesRead_ + (ends ? 0 : 1) - start};
}

void FileScanner::TallyLines(FileReport& report) const {
  LineTally tally(LineUnitOf(report.encoding));
  tally.Take({memory_.data(), bytesRead_});
  report.lines = tally.Figures();
}

void FileScanner::Scan(WalkItem& item, int& openComment) {
  LoadMarkersFor(item.report.path, request_.scan, settings_);
  settings_.OpenComment = openComment;
  item.count = scanner_.Scan(Lines(item.report), settings_);
  item.report.bytesRead = static_cast<std::int64_t>(bytesRead_);
  if (request_.keepReports) TallyLines(item.report);
  item.state = WalkItem::State::kScanned;
  openComment = item.count.openComment;
}

}  // namespace quillomat
