// The clipboard as the source of a count: its text is fetched, checked and scanned in one piece.
#pragma once

#include <cstddef>
#include <string>

#include "app/count/window_count.h"
#include "app/list/word_lister.h"
#include "base/run_time_error.h"
#include "sources/count_request.h"
#include "ui/desktop.h"

namespace quillomat {

/// The longest clipboard text that is counted, in characters.
inline constexpr std::size_t kClipboardTextLimit = 100'000;

class ClipboardSource {
 public:
  /// All must outlive it.
  ClipboardSource(const WindowCount& count, WordLister& lister, Desktop& desktop)
      : count_(count), lister_(lister), desktop_(desktop) {}

  /// Fetches the text; with `paste` also into the output text box. Tells the user what is wrong
  /// with it and returns false.
  [[nodiscard]] bool ReadClipboard(bool paste);

  /// Counts the text that ReadClipboard fetched, as the request wants it but for its source. Tells
  /// the user what is wrong and returns false.
  [[nodiscard]] bool ScanClipboard(CountRequest request);

 private:
  /// `length` is that of the text, in characters; 0 while it is not known.
  void RefuseClipboard(const RunTimeError& error, std::size_t length) const;

  const WindowCount& count_;
  WordLister& lister_;
  Desktop& desktop_;
  std::string text_;
};

}  // namespace quillomat
