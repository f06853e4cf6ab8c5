// What a run in the terminal is connected to. The program gives its standard streams, a test its
// own.
#pragma once

#include <chrono>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

#include "base/byte_sink.h"
#include "base/byte_source.h"
#include "engine/word_scanner.h"

namespace quillomat {

struct TerminalStreams {
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  /// Opens standard input, which is read once. While nothing comes it asks `yield` whether to go
  /// on, and ends if not.
  std::function<std::unique_ptr<ByteSource>(ScanYield& yield)> openInput;
  /// Has `write` print on standard output; false when that failed and the user, if there still is
  /// one, has been told.
  std::function<bool(const std::function<void(ByteSink&)>& write)> print;
  /// Outlives the run.
  std::ostream& err;
  /// A person looks at `err`, or at what is printed.
  bool errIsTerminal = false;
  bool outIsTerminal = false;
  /// The exit status that an interruption asks for; 0 as long as there was none.
  std::function<int()> interruption = [] { return 0; };
  /// The count is over, be it that it was interrupted: whatever comes now ends the program at once.
  std::function<void()> endAtInterruption = [] {};
  Clock clock = std::chrono::steady_clock::now;
};

}  // namespace quillomat
