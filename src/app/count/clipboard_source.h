// The clipboard as the source of a count: its text is fetched, checked and scanned in one piece.
#pragma once

#include <cstddef>
#include <string>

#include "app/count/run_context.h"
#include "base/run_time_error.h"

namespace quillomat {

/// The longest clipboard text that is counted, in characters.
inline constexpr std::size_t kClipboardTextLimit = 100'000;

class ClipboardSource {
 public:
  explicit ClipboardSource(const RunContext& context) : context_(context) {}

  /// Fetches the text; with `paste` also into the output text box. Tells the user what is wrong
  /// with it and returns false.
  [[nodiscard]] bool ReadClipboard(bool paste);

  /// Counts the text that ReadClipboard fetched. Tells the user what is wrong and returns false.
  [[nodiscard]] bool ScanClipboard();

 private:
  /// `length` is that of the text, in characters; 0 while it is not known.
  void RefuseClipboard(const RunTimeError& error, std::size_t length) const;

  const RunContext& context_;
  std::string text_;
};

}  // namespace quillomat
