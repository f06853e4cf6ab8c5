// What quillomat-cli prints: its list and its help on standard output, its messages on standard
// error. On a terminal control characters are shown escaped; files and pipes get the bytes.
#pragma once

#include <functional>
#include <iosfwd>
#include <streambuf>

#include "base/byte_sink.h"

namespace quillomat {

/// Has `write` print on standard output. False when that failed; `err` is told, unless it is only
/// that the reader has seen enough, as head has.
[[nodiscard]] bool PrintToStandardOutput(const std::function<void(ByteSink&)>& write,
                                         std::ostream& err);

/// Passes everything on to `target`, escaped for a terminal.
class EscapingBuffer final : public std::streambuf {
 public:
  /// `target` must outlive the buffer.
  explicit EscapingBuffer(std::streambuf& target) : target_(target) {}

 protected:
  std::streamsize xsputn(const char* text, std::streamsize bytes) override;
  int_type overflow(int_type character) override;
  int sync() override { return target_.pubsync(); }

 private:
  std::streambuf& target_;
};

}  // namespace quillomat
