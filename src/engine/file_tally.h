// In which files a word occurs, and how often in each: kept for count-only words of a folder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// The files of one word, in the order in which they were met.
struct FileTally {
  /// A word's record takes this many files; then its total still grows, but not its files.
  static constexpr std::size_t kMaxFiles = 8000;

  /// Indexes into FileTracker::FileList.
  std::vector<std::int32_t> FileNumbers;
  /// Occurrences, parallel to FileNumbers.
  std::vector<std::int16_t> FileCounts;

  [[nodiscard]] std::int32_t NumFiles() const {
    return static_cast<std::int32_t>(FileNumbers.size());
  }

  /// Counts occurrences in the file. Throws RunTimeError 6 at the 32,768th in one file.
  void CountWordInFile(std::int32_t fileNumber, std::int32_t times = 1);
};

/// Which file is being scanned, and the numbered files so far. A file gets its number when the
/// first word in it is counted, so files without such a word have none.
class FileTracker {
 public:
  /// A file number has 5 digits; files beyond take part in the totals only.
  static constexpr std::int32_t kMaxFileNumber = 99'999;

  FileTracker() = default;

  [[nodiscard]] bool IsOn() const { return on_; }
  /// Forgets all files. `on` says whether files are tracked from now on.
  void Reset(bool on);
  /// `path` is the file whose words come next.
  void SetFileBeingScanned(std::string_view path) { fileBeingScanned_ = path; }
  [[nodiscard]] const std::string& FileBeingScanned() const { return fileBeingScanned_; }
  /// Numbers the file being scanned if it has no number yet.
  void NoteCurrentFile();

  [[nodiscard]] std::int32_t CurrentFileNumber() const {
    return static_cast<std::int32_t>(fileList_.size()) - 1;
  }
  /// The paths by number; the first file has number 1, and the path at 0 is empty.
  [[nodiscard]] const std::vector<std::string>& FileList() const { return fileList_; }

 private:
  bool on_ = false;
  std::string fileBeingScanned_;
  std::vector<std::string> fileList_{std::string()};
};

}  // namespace quillomat
