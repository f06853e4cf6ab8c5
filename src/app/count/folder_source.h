// A folder as the source of a count, and the list of the files that a count would read. The walk
// goes through the files of a folder in the order of their names, then through its subfolders.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/count/file_extensions.h"
#include "app/count/input_file_row.h"
#include "app/count/path_boxes.h"
#include "app/count/window_count.h"
#include "sources/count_request.h"
#include "sources/count_result.h"

namespace quillomat {

/// "2 files in 1 folder", with `separator` between groups of digits.
[[nodiscard]] std::string FilesInFolders(std::int32_t files, std::int32_t folders,
                                         std::string_view separator);

/// What there are none of in `place`: "scanable files were found in this folder", to be read behind
/// "No". `ofType`: of those that the extensions let through.
[[nodiscard]] std::string ScanableFilesIn(std::string_view place, bool ofType, bool subfolders);

/// A file or folder that could not be read although it should have been.
struct SkippedItem {
  std::string path;
  std::string reason;
};

class FolderSource {
 public:
  /// All must outlive it.
  FolderSource(const WindowCount& count, InputFileRow& row, PathBoxes& paths,
               const FileExtensions& extensions)
      : count_(count), row_(row), paths_(paths), extensions_(extensions) {}

  /// Counts the words of the folder's files, as the request wants it but for its source. Tells the
  /// user what is wrong and returns false. Throws RunTimeError when a counter overflows.
  [[nodiscard]] bool ScanFolder(CountRequest request);

  /// Lists the files that a count would read.
  void ListFiles();

  /// What the last scan had to skip, in its order; the first of it where it is much.
  [[nodiscard]] const std::vector<SkippedItem>& Skipped() const { return skipped_; }
  [[nodiscard]] std::int64_t SkippedInAll() const { return skippedInAll_; }

 private:
  [[nodiscard]] TextOfFolder Folder() const;
  void TellRefusal(const CountResult& result) const;
  void TakeSkipped(const CountResult& result);
  [[nodiscard]] std::string SkippedNotice(const CountResult& result) const;
  void TellStoppedCounting(std::int32_t files, std::int32_t folders) const;
  [[nodiscard]] std::string FilesIn(std::int32_t files, std::int32_t folders) const;
  void OutputLine(const std::string& line) const;

  const WindowCount& count_;
  InputFileRow& row_;
  PathBoxes& paths_;
  const FileExtensions& extensions_;
  std::vector<SkippedItem> skipped_;
  std::int64_t skippedInAll_ = 0;
};

}  // namespace quillomat
