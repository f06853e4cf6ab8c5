// What quillomat-cli prints: its list and its help on standard output, its messages on standard
// error. On a terminal control characters are shown escaped; files and pipes get the bytes.
#pragma once

#include <functional>
#include <iosfwd>
#include <streambuf>
#include <string_view>

#include "base/byte_sink.h"

namespace quillomat {

/// Has `write` print on standard output. False when that failed; `err` is told, unless it is only
/// that the reader has seen enough, as head has.
[[nodiscard]] bool PrintToStandardOutput(const std::function<void(ByteSink&)>& write,
                                         std::ostream& err);

/// Passes everything on to `target`, escaped for a terminal.
class EscapingBuffer final : public std::streambuf {
 public:
  /// `target` must outlive the buffer. `coloured`: the terminal shows colours.
  explicit EscapingBuffer(std::streambuf& target, bool coloured = false)
      : target_(target), coloured_(coloured) {}

  [[nodiscard]] std::streambuf& Target() const { return target_; }
  [[nodiscard]] bool IsColoured() const { return coloured_; }

 protected:
  std::streamsize xsputn(const char* text, std::streamsize bytes) override;
  int_type overflow(int_type character) override;
  int sync() override { return target_.pubsync(); }

 private:
  std::streambuf& target_;
  bool coloured_;
};

/// Writes what is meant for the terminal itself; a stream that does not escape gets it as it is.
void WriteUnescaped(std::ostream& out, std::string_view text);

enum class MessageTone { kError, kWarning };

/// The beginning of a message, in the colour of its tone where `err` shows colours.
struct Headed {
  MessageTone tone = MessageTone::kError;
  std::string_view head;
};
std::ostream& operator<<(std::ostream& err, const Headed& headed);

/// What the program's own errors begin with.
inline constexpr Headed kOwnError{MessageTone::kError, "quillomat-cli: "};

}  // namespace quillomat
