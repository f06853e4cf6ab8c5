// What the main window shows and asks while a folder is counted, and how it writes the paths of
// files and folders.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/count/input_file_row.h"
#include "app/count/path_boxes.h"
#include "app/count/progress_bar.h"
#include "app/count/window_count.h"

namespace quillomat {

/// The path with the chosen folder's name in place of its path.
[[nodiscard]] std::string ShownPath(const MainForm& frmMain, const std::string& path);

/// Writes a path on a line of its own into the output text box.
void WritePathLine(const WindowCount& count, const std::string& path);
/// Writes behind it that it was skipped.
void WriteSkipped(const WindowCount& count, const SkippedFile& skipped);

/// Asks whether so many files shall be counted without an output file; false when the user cancels.
[[nodiscard]] bool AskAboutManyFiles(const Messages& messages, std::int32_t files,
                                     const std::string& outputPath);

class FolderObserver final : public WindowObserver {
 public:
  FolderObserver(const WindowCount& count, InputFileRow& row, PathBoxes& paths);

  void OnFileCounted(std::int32_t files, std::int32_t folders) override;
  [[nodiscard]] bool GoOn(std::int32_t files, std::int32_t folders,
                          std::string& outputPath) override;
  void OnScanBegins() override;
  void OnFileMet(const std::string& path, const CountProgress& progress) override;
  void OnFileBegins(const FileBegins& file) override;
  void OnProgress(const CountProgress& progress) override;
  void OnFileEnds(const FileReport& report, const CountProgress& progress) override;
  void OnSkipped(const SkippedFile& skipped) override;

 private:
  /// While it lives, the input row shows one file of the folder after the other, and a progress bar
  /// follows them; afterwards the user's own input file stands there again.
  class FilesInTurn {
   public:
    FilesInTurn(const WindowCount& count, InputFileRow& row);
    FilesInTurn(const FilesInTurn&) = delete;
    FilesInTurn& operator=(const FilesInTurn&) = delete;
    FilesInTurn(FilesInTurn&&) = delete;
    FilesInTurn& operator=(FilesInTurn&&) = delete;
    ~FilesInTurn();

    void ShowDone(std::int32_t files, std::int32_t of);
    /// How far the run has come, as a value.
    void ShowProgress(const CountProgress& progress);

   private:
    const WindowCount& count_;
    InputFileRow::Loan loan_;
    ProgressBar progress_;
  };

  InputFileRow& row_;
  PathBoxes& paths_;
  std::optional<FilesInTurn> filesInTurn_;
};

}  // namespace quillomat
