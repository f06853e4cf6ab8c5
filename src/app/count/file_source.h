// A text file as the source of a count: the checks of its path, the question about a large one, and
// what the user is told when it cannot be read.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/count/run_context.h"
#include "base/run_time_error.h"
#include "sources/count_result.h"
#include "sources/output_rules.h"

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
  explicit FileSource(const RunContext& context) : context_(context) {}

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
  void EndProgressBar();

  /// Set while a scan runs. One that is found set when a single file is started is left over from a
  /// scan that ended early, and makes a large file be asked about.
  [[nodiscard]] bool Scanning() const { return scanning_; }
  void SetScanning(bool scanning) { scanning_ = scanning; }

  /// Called when the user is to choose an output file.
  void SetOutputFileChooser(std::function<void()> chooser) {
    chooseOutputFile_ = std::move(chooser);
  }
  void ChooseOutputFile() { chooseOutputFile_(); }

 private:
  [[nodiscard]] const std::string& InputPath() const { return context_.frmMain.txbFile[0].Text(); }
  [[nodiscard]] ScanFileResult CheckPaths();
  [[nodiscard]] CountedText AsText() const;
  [[nodiscard]] bool OutputIsInput() const;
  [[nodiscard]] bool AskAboutLargeFile();
  [[nodiscard]] ScanFileResult TellRefusal(Refusal refusal) const;
  void ShowFileSize(std::optional<std::int64_t> bytes);
  void FinishFile();

  const RunContext& context_;
  std::function<void()> chooseOutputFile_;
  bool scanning_ = false;
  /// The input path that was checked last.
  std::string path_;
  std::optional<RunTimeError> error_;
};

/// Tells the user that a file is no text.
void TellNotText(const RunContext& context);

/// "Filesize: 4.20 MB".
[[nodiscard]] std::string FileSizeText(std::int64_t bytes, std::string_view separator);

}  // namespace quillomat
