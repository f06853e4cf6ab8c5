#include "listing/file_list_sink.h"

#include <cstddef>
#include <utility>

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{256} * 1024;

}  // namespace

FileListSink::FileListSink(Writer writer, StopTest stopTest, const LineOptions& options,
                           std::int32_t numDifferentWords)
    : writer_(std::move(writer)),
      stopTest_(std::move(stopTest)),
      runsOn_(options.format == DisplayFormat::kWordCommas),
      lineBreak_(options.lineBreak),
      numDifferentWords_(numDifferentWords) {}

void FileListSink::TakeHeader(std::string_view line) {
  block_.append(line).append(lineBreak_);
  WriteWhenFull();
}

bool FileListSink::TakeWord(std::int32_t index, std::string_view line) {
  LineRoom().append(line);
  return TakeLineInRoom(index);
}

bool FileListSink::TakeLineInRoom(std::int32_t index) {
  const bool isLast = ++wordsTaken_ == mostWords_;
  if (!runsOn_) {
    block_.append(lineBreak_);
  } else if (index < numDifferentWords_ && !isLast) {
    block_.append(", ");
  }
  WriteWhenFull();
  return !isLast && !stopTest_();
}

void FileListSink::WriteWhenFull() {
  if (block_.size() >= kBlockBytes) Flush();
}

void FileListSink::Flush() {
  if (block_.empty()) return;
  writer_(block_);
  block_.clear();
}

}  // namespace quillomat
