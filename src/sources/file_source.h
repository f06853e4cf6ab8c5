// A text file as the source of a count. The same procedure reads each file of a folder, then
// without messages, and skips what is unsuitable.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/line_decoder.h"
#include "base/run_time_error.h"
#include "sources/line_endings.h"
#include "sources/progress_bar.h"
#include "sources/run_context.h"
#include "sources/scan_job.h"
#include "system/input_file.h"

namespace quillomat {

enum class ScanFileResult {
  kDone = 0,
  kFolderNotFile = 1,
  kNotFound = 2,
  kNotSpecified = 3,
  kOutputIsInput = 4,
  kCancelled = 5,
  kNotText = 6,
  kZeroLength = 7,
  kRunTimeError = 9,
  kCannotBeOpened = 11,
};

class FileSource {
 public:
  explicit FileSource(const RunContext& context)
      : context_(context), progress_(context.frmMain.lblTotalNumOccurrences) {}

  /// Reads the file named in the input box. A stopped scan is done, too.
  [[nodiscard]] ScanFileResult ScanFile();

  /// What went wrong when ScanFile returned kRunTimeError.
  [[nodiscard]] const RunTimeError& Error() const { return *error_; }

  /// The file that was read, or checked, last.
  [[nodiscard]] const std::string& Path() const { return path_; }

  /// Checks an input path: kDone, kFolderNotFile (the input box is emptied) or kNotFound. Shows the
  /// size of the file, or nothing.
  ScanFileResult CheckInputFile(const std::string& path);

  /// Ends the progress bar that a file left in its label.
  void EndProgressBar() { progress_.EndProgressBar(); }

  /// Set while a scan runs. One that is found set when a single file is started is left over from a
  /// scan that ended early, and makes a large file be asked about.
  [[nodiscard]] bool Scanning() const { return scanning_; }
  void SetScanning(bool scanning) { scanning_ = scanning; }

  /// The folder source's scan, which its files take part in; null for a single file.
  void SetFolderJob(ScanJob* job) { folderJob_ = job; }
  /// Told of the bytes of the file that have been read so far, again and again; empty for nobody.
  void SetBytesListener(std::function<void(std::int64_t)> listener) {
    onBytesRead_ = std::move(listener);
  }

  /// Called when the user is to choose an output file.
  void SetOutputFileChooser(std::function<void()> chooser) {
    chooseOutputFile_ = std::move(chooser);
  }
  void ChooseOutputFile() { chooseOutputFile_(); }

 private:
  [[nodiscard]] bool IsSingleFile() const { return context_.frmMain.optInFile.Value(); }
  [[nodiscard]] const std::string& InputPath() const { return context_.frmMain.txbFile[0].Text(); }
  [[nodiscard]] ScanFileResult CheckPaths();
  [[nodiscard]] CountedText AsText() const;
  [[nodiscard]] bool OutputIsInput() const;
  [[nodiscard]] bool AskAboutLargeFile();
  [[nodiscard]] ScanFileResult CheckText(LineEndingType type);
  void LoadMarkers();
  void ShowFileType(LineEndingType type);
  void ShowFileSize(std::optional<std::int64_t> bytes);
  void ReadLines(ScanJob& job, InputFile& file, LineEndingType type);
  void FinishFile();

  const RunContext& context_;
  ProgressBar progress_;
  std::function<void()> chooseOutputFile_;
  std::function<void(std::int64_t)> onBytesRead_;
  ScanJob* folderJob_ = nullptr;
  bool scanning_ = false;
  /// The input path that was checked last.
  std::string path_;
  std::optional<RunTimeError> error_;
};

/// "Filesize: 4.20 MB".
[[nodiscard]] std::string FileSizeText(std::int64_t bytes, std::string_view separator);

}  // namespace quillomat
