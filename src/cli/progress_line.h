// The progress of a count as one line of a terminal, painted over and over:
//
//   [=========>           ]  43%  1.2 GB of 2.8 GB  310 MB/s  0:05 left
//
// Where the size of the whole is not known (a pipe), without the bar. On a stream that is no
// terminal each painting is a line of its own, and there are fewer.
#pragma once

#include <chrono>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

#include "base/work_pace.h"
#include "cli/terminal_streams.h"
#include "system/locale_info.h"

namespace quillomat {

class ProgressLine {
 public:
  using Duration = std::chrono::steady_clock::duration;

  /// Nothing is shown before `patience` is over. The streams must outlive the line.
  ProgressLine(const TerminalStreams& streams, Duration patience);
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  ProgressLine(ProgressLine&&) = delete;
  ProgressLine& operator=(ProgressLine&&) = delete;
  /// Leaves the terminal's line empty.
  ~ProgressLine();

  /// Cheap: most calls paint nothing.
  void Show(BytesDone bytes);

 private:
  void Paint(const std::string& text);

  const TerminalStreams& streams_;
  std::chrono::steady_clock::time_point start_;
  std::chrono::steady_clock::time_point nextPainting_;
  /// The user's, as in the other figures of a run.
  const std::string decimalSign_ = DecimalSign();
  std::size_t width_ = 0;  // of what is on the terminal's line
};

/// The line after so much time.
[[nodiscard]] std::string ProgressText(BytesDone bytes, ProgressLine::Duration elapsed,
                                       std::string_view decimalSign = ".");

}  // namespace quillomat
