#include "sources/file_batch.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <new>
#include <span>
#include <string_view>
#include <utility>

#include "base/byte_order_mark.h"
#include "base/byte_source.h"
#include "sources/converted_source.h"
#include "sources/encoding_guess.h"
#include "sources/line_endings.h"
#include "sources/text_pass.h"
#include "sources/text_reader.h"

namespace quillomat {

void WalkItem::LeaveAlone() {
  FileReport anew;
  anew.path = std::move(report.path);
  report = std::move(anew);
  state = State::kLeftAlone;
  file.reset();
}

std::size_t FileScanner::Take(std::vector<WalkItem>& items, int& openComment, std::size_t& bytes) {
  opened_ = 0;
  std::size_t taken = 0;
  for (; taken < items.size() && bytes < batchBytes_ && !stop_; ++taken) {
    WalkItem& item = items[taken];
    if (item.forThreads) Try(item, openComment);
    if (item.IsReadLater()) EndRun();  // nobody knows yet which comment it will leave open
    bytes += static_cast<std::size_t>(item.report.bytesRead);
  }
  EndRun();
  return taken;
}

void FileScanner::Try(WalkItem& item, int& openComment) {
  try {
    TakeFile(item, openComment);
  } catch (const std::exception&) {
    item.LeaveAlone();
  }
}

/// The counts of the files until here go with the last one.
void FileScanner::EndRun() {
  if (run_.first == nullptr) return;
  try {
    scanner_.TakeCounts(run_.last->count);
    run_.last->isLastTogether = true;
    run_ = {};
  } catch (const std::bad_alloc&) {
    GiveUpRun();
  }
}

/// Where a file was counted in part, its words cannot be told from those of the files before.
void FileScanner::GiveUpRun() {
  scanner_.ForgetWords();
  if (run_.first == nullptr) return;
  for (WalkItem* item = run_.first; item <= run_.last; ++item) {
    if (item->state == WalkItem::State::kScanned) item->LeaveAlone();
  }
  run_ = {};
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
  if (bytesRead_ != length) return;  // it has grown or was cut meanwhile
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
  const std::size_t start = MarkOf(bytes).bytes;
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
  const std::string_view lines = Lines(item.report);
  if (request_.keepReports) TallyLines(item.report);
  try {
    item.count = scanner_.Scan(lines, settings_, counts_);
  } catch (...) {
    GiveUpRun();
    throw;
  }
  item.report.bytesRead = static_cast<std::int64_t>(bytesRead_);
  item.state = WalkItem::State::kScanned;
  openComment = item.count.openComment;
  if (counts_ == PieceScanner::Counts::kByPiece) return;
  if (run_.first == nullptr) run_.first = &item;
  run_.last = &item;
  run_.first->bytesTogether += item.report.bytesRead;
}

}  // namespace quillomat
