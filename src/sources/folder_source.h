// A folder as the source of a count, and the list of the files that a count would read. The walk
// goes through the files of a folder in the order of their names, then through its subfolders.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sources/file_extensions.h"
#include "sources/file_source.h"
#include "sources/progress_bar.h"
#include "sources/run_context.h"

namespace quillomat {

/// "2 files in 1 folder", with `separator` between groups of digits.
[[nodiscard]] std::string FilesInFolders(std::int32_t files, std::int32_t folders,
                                         std::string_view separator);

/// Whether a file whose name fits `pattern` is in the folder or, if asked for, anywhere below it.
/// A subfolder that may not be read holds none; throws RunTimeError when the folder itself may not.
[[nodiscard]] bool FolderHasFiles(const std::string& path, std::string_view pattern,
                                  bool includeSubfolders);

/// A file or folder that could not be read although it should have been.
struct SkippedItem {
  std::string path;
  std::string reason;
};

class FolderSource {
 public:
  FolderSource(const RunContext& context, FileSource& fileSource, FileExtensions& extensions)
      : context_(context),
        fileSource_(fileSource),
        extensions_(extensions),
        filesProgress_(context.frmMain.lblNumOccurrences) {}

  /// Counts the words of the folder's files. Tells the user what is wrong and returns false. Throws
  /// RunTimeError when a counter overflows.
  [[nodiscard]] bool ScanFolder();

  /// Lists the files that a count would read.
  void ListFiles();

  /// What the last walk had to skip, in its order. No more than kMaxSkippedItems are kept.
  [[nodiscard]] const std::vector<SkippedItem>& Skipped() const { return skipped_; }

 private:
  static constexpr std::size_t kMaxSkippedItems = 1000;
  enum class Pass { kCounting, kListOnly, kScanning };

  [[nodiscard]] bool CheckFolder() const;
  [[nodiscard]] bool CheckOutputFile() const;
  [[nodiscard]] std::string FilesInPass() const;
  [[nodiscard]] bool RunCountingPass(Pass pass);
  [[nodiscard]] bool AskForOutputFile() const;
  void RunScanningPass();
  void WalkFolder(const std::string& path);
  void TakeFile(const std::string& path);
  void ScanOneFile(const std::string& path);
  void ShowFilesCounted() const;
  void ShowProgress(std::int64_t bytesOfFile);
  [[nodiscard]] std::string ShownPath(const std::string& path) const;
  [[nodiscard]] std::string SkippedNotice() const;
  void WritePathLine(const std::string& path);
  void Skip(const std::string& path, const std::string& reason);
  void OutputLine(const std::string& line);
  [[nodiscard]] const std::string& Folder() const { return context_.frmMain.txbFolder.Text(); }
  [[nodiscard]] bool IncludesSubfolders() const {
    return context_.frmMain.chkIncludeSubfolders.IsChecked();
  }

  const RunContext& context_;
  FileSource& fileSource_;
  FileExtensions& extensions_;
  Pass pass_ = Pass::kCounting;
  std::int32_t filesCounted_ = 0;
  std::int32_t filesTried_ = 0;
  /// Of the files of the counting pass, and of those that have been read or refused since.
  std::int64_t bytesCounted_ = 0;
  std::int64_t bytesTried_ = 0;
  ProgressBar filesProgress_;
  std::vector<SkippedItem> skipped_;
};

}  // namespace quillomat
