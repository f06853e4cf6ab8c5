// The file in the input row as the source of a count: the question about a large one, the scan, and
// what the user is told when it cannot be read. Its path is checked and shown by InputFileRow.
#pragma once

#include <optional>
#include <string>

#include "app/count/input_file_check.h"
#include "app/count/input_file_row.h"
#include "app/count/path_boxes.h"
#include "app/count/window_count.h"
#include "base/run_time_error.h"
#include "sources/count_request.h"
#include "sources/output_rules.h"
#include "ui/desktop.h"

namespace quillomat {

class FileSource {
 public:
  /// All must outlive it.
  FileSource(const WindowCount& count, InputFileRow& row, PathBoxes& paths, Desktop& desktop)
      : count_(count), row_(row), paths_(paths), desktop_(desktop) {}

  /// Reads the file named in the input box, as the request wants it but for its source. A stopped
  /// scan is done, too.
  [[nodiscard]] ScanFileResult ScanFile(CountRequest request);

  /// What went wrong when ScanFile returned kRunTimeError.
  [[nodiscard]] const RunTimeError& Error() const { return *error_; }

  /// The file that was to be read last.
  [[nodiscard]] const std::string& Path() const { return path_; }

  /// Ends the progress bar that a file left in its label.
  void EndProgressBar();

 private:
  [[nodiscard]] ScanFileResult CheckPaths();
  [[nodiscard]] bool OutputIsInput() const;
  [[nodiscard]] bool AskAboutLargeFile();
  [[nodiscard]] ScanFileResult TellRefusal(Refusal refusal) const;
  void FinishFile();

  const WindowCount& count_;
  InputFileRow& row_;
  PathBoxes& paths_;
  Desktop& desktop_;
  std::string path_;
  std::optional<RunTimeError> error_;
};

/// Tells the user that a file is no text.
void TellNotText(const Messages& messages);
/// Tells the user that there is no such file, or that it is a folder.
void RefuseMissingInput(const Messages& messages, const std::string& path);

}  // namespace quillomat
