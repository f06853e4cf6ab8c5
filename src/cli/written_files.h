// Which files a run in the terminal has replaced by now: an interruption leaves them so, and says
// it.
#pragma once

#include <string>
#include <string_view>

#include "cli/terminal_streams.h"

namespace quillomat {

class WrittenFiles {
 public:
  /// `streams` must outlive it.
  explicit WrittenFiles(const TerminalStreams& streams) : streams_(streams) {}

  /// The file is whole, under its own name.
  void Add(std::string_view path);

 private:
  const TerminalStreams& streams_;
  std::string names_;
};

}  // namespace quillomat
