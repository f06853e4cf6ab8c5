#include "engine/file_tally.h"

#include <limits>

#include "base/checked_count.h"
#include "base/run_time_error.h"

namespace quillomat {

void FileTally::CountWordInFile(std::int32_t fileNumber, std::int32_t times) {
  if (times == 0 || FileNumbers.size() == kMaxFiles || fileNumber > FileTracker::kMaxFileNumber) {
    return;
  }
  if (FileNumbers.empty() || FileNumbers.back() != fileNumber) {
    FileNumbers.push_back(fileNumber);
    FileCounts.push_back(0);
  }
  // A record that is full takes nothing more, not even for its last file.
  const std::int32_t taken = FileNumbers.size() == kMaxFiles ? 1 : times;
  std::int32_t count = FileCounts.back();
  AddChecked(count, taken);
  if (count > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError(RunTimeErrorNumber::kOverflow);
  }
  FileCounts.back() = static_cast<std::int16_t>(count);
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
