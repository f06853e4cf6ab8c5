#include "engine/file_tally.h"

#include <algorithm>

#include "base/checked_count.h"

namespace quillomat {

void FileTally::CountWordInFile(std::int32_t fileNumber, std::int32_t times) {
  if (times == 0) return;
  if (FileNumbers.empty() || FileNumbers.back() != fileNumber) {
    FileNumbers.push_back(fileNumber);
    FileCounts.push_back(0);
  }
  AddChecked(FileCounts.back(), times);
}

std::size_t FileTally::ListedFiles() const {
  const auto beyond = std::ranges::upper_bound(FileNumbers, kMaxListedNumber);  // they ascend
  return std::min(kMaxListedFiles, static_cast<std::size_t>(beyond - FileNumbers.begin()));
}

std::int32_t FileTally::ListedCount(std::size_t index) const {
  return index + 1 == kMaxListedFiles ? 1 : FileCounts[index];
}

bool FileTally::ExceedsRecord() const {
  return !FileCounts.empty() && FileCounts.back() > kMostInListedFile &&
         FileNumbers.size() < kMaxListedFiles && FileNumbers.back() <= kMaxListedNumber;
}

void FileTracker::Reset(bool on, TallyUse use) {
  on_ = on;
  use_ = use;
  fileBeingScanned_.clear();
  fileList_.assign(1, std::string());
}

void FileTracker::NoteCurrentFile() {
  if (!CurrentFileIsNoted()) fileList_.push_back(fileBeingScanned_);
}

}  // namespace quillomat
