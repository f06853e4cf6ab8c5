// In which files a word occurs, and how often in each: kept for count-only words of a folder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// The files of one word, in the order in which they were met.
///
/// All files are kept. The display formats that tell of files show a record of them that has limits
/// of its own: see ListedFiles.
struct FileTally {
  /// The record takes this many files; the last of them has one occurrence there, as a record that
  /// is full takes nothing more.
  static constexpr std::size_t kMaxListedFiles = 8000;
  /// A file's number has 5 digits in the record; files beyond take part in the totals only.
  static constexpr std::int32_t kMaxListedNumber = 99'999;
  /// Occurrences in one file of the record.
  static constexpr std::int32_t kMostInListedFile = 32'767;

  /// Indexes into FileTracker::FileList.
  std::vector<std::int32_t> FileNumbers;
  /// Occurrences, parallel to FileNumbers.
  std::vector<std::int32_t> FileCounts;

  [[nodiscard]] std::int32_t NumFiles() const {
    return static_cast<std::int32_t>(FileNumbers.size());
  }
  /// So many of the files, the first ones, are in the record.
  [[nodiscard]] std::size_t ListedFiles() const;
  /// The occurrences that the record has of one of them, by its index in FileNumbers.
  [[nodiscard]] std::int32_t ListedCount(std::size_t index) const;
  /// Whether the last file is in the record with more occurrences than that takes.
  [[nodiscard]] bool ExceedsRecord() const;

  void CountWordInFile(std::int32_t fileNumber, std::int32_t times = 1);
  /// Of the file with that number; 0 if the word was not met in it yet, or in a later one.
  [[nodiscard]] std::int32_t CountInFile(std::int32_t fileNumber) const {
    return FileNumbers.empty() || FileNumbers.back() != fileNumber ? 0 : FileCounts.back();
  }
};

/// What tallies are kept for.
enum class TallyUse {
  /// Display formats, too: more occurrences in one file than the record takes are an overflow.
  kListed,
  /// Anything else: there is no such limit.
  kUnlisted,
};

/// Which file is being scanned, and the numbered files so far. A file gets its number when the
/// first word in it is counted, so files without such a word have none.
class FileTracker {
 public:
  FileTracker() = default;

  [[nodiscard]] bool IsOn() const { return on_; }
  [[nodiscard]] TallyUse Use() const { return use_; }
  /// Forgets all files. `on` says whether files are tracked from now on.
  void Reset(bool on, TallyUse use = TallyUse::kListed);
  /// `path` is the file whose words come next.
  void SetFileBeingScanned(std::string_view path) { fileBeingScanned_ = path; }
  [[nodiscard]] const std::string& FileBeingScanned() const { return fileBeingScanned_; }
  /// Numbers the file being scanned if it has no number yet.
  void NoteCurrentFile();
  [[nodiscard]] bool CurrentFileIsNoted() const { return fileBeingScanned_ == fileList_.back(); }

  [[nodiscard]] std::int32_t CurrentFileNumber() const {
    return static_cast<std::int32_t>(fileList_.size()) - 1;
  }
  /// The paths by number; the first file has number 1, and the path at 0 is empty.
  [[nodiscard]] const std::vector<std::string>& FileList() const { return fileList_; }

 private:
  bool on_ = false;
  TallyUse use_ = TallyUse::kListed;
  std::string fileBeingScanned_;
  std::vector<std::string> fileList_{std::string()};
};

}  // namespace quillomat
