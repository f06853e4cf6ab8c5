#include "engine/file_tally.h"

#include "base/checked_count.h"

namespace quillomat {

void FileTally::CountWordInFile(std::int32_t fileNumber) {
  if (FileNumbers.size() == kMaxFiles || fileNumber > FileTracker::kMaxFileNumber) return;
  if (FileNumbers.empty() || FileNumbers.back() != fileNumber) {
    FileNumbers.push_back(fileNumber);
    FileCounts.push_back(0);
  }
  IncrementChecked(FileCounts.back());
}

void FileTracker::Reset(bool on) {
  on_ = on;
  fileBeingScanned_.clear();
  fileList_.assign(1, std::string());
}

void FileTracker::NoteCurrentFile() {
  if (fileBeingScanned_ != fileList_.back()) fileList_.push_back(fileBeingScanned_);
}

}  // namespace quillomat
