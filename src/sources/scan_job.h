// One scan from start to end: the settings as they stood when it began, the scanner, and the link
// to the window. Made by a source when it starts reading.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/byte_source.h"
#include "base/line_decoder.h"
#include "engine/long_line.h"
#include "engine/parallel/threaded_scan.h"
#include "engine/word_scanner.h"
#include "sources/panel_choices.h"
#include "sources/run_context.h"
#include "sources/word_echo.h"

namespace quillomat {

class ScanJob {
 public:
  /// The allow flags of the state's settings are ready.
  explicit ScanJob(const RunContext& context)
      : state_(context.state),
        choices_(ReadScanChoices(context.frmParams)),
        lists_(context.state.lists),
        echo_(context),
        yield_(context),
        scanner_(context.state.settings, choices_, lists_, context.state.store, yield_) {}

  [[nodiscard]] const ScanChoices& Choices() const { return choices_; }

  /// Lets the windows live; true when the scan is to stop.
  bool Yield() { return yield_.Yield(); }

  /// Scans one piece of text: lower-cased unless letter case is significant, a blank appended.
  void ScanText(std::string_view text) {
    Scan(PrepareLine(text, IsSet(choices_.caseSignificant), buffer_));
  }

  /// The start of `lines`, whole lines with their line feeds, that ScanLines takes; may be empty.
  [[nodiscard]] std::string_view PlainLines(std::string_view lines) {
    return lines.substr(0, scanner_.PlainLineBytes(lines));
  }
  /// Scans lines that PlainLines gave, as they stand in the file.
  void ScanLines(std::string_view lines) {
    scanner_.SetWordsRead(state_.WordsRead);
    scanner_.GetWordsOfLines(lines);
    state_.WordsRead = scanner_.WordsRead();
  }

  /// Scans the line that `lines` is at part by part, if it is long and its markers let it be;
  /// returns false otherwise. `onBytes` is told of its bytes, with two for the line end: at once
  /// unless they are many.
  bool ScanLongLine(LineDecoder& lines, const std::function<void(std::int64_t)>& onBytes) {
    if (!lines.IsAtLongLine() || !scanner_.CanTakeParts()) return false;
    scanner_.SetWordsRead(state_.WordsRead);
    LongLine line({state_.settings, choices_, lists_, state_.store, yield_, scanner_});
    std::int64_t untold = 0;
    for (std::string_view part = lines.NextPartOfLine(); !part.empty();
         part = lines.NextPartOfLine()) {
      if (untold >= kBytesWorthTelling) onBytes(std::exchange(untold, 0));
      untold += static_cast<std::int64_t>(part.size());
      line.Take(part);
      state_.WordsRead = scanner_.WordsRead();  // whatever becomes of the rest
      if (yield_.Yield()) break;
    }
    line.End();
    onBytes(untold + kLineEndBytes);
    state_.WordsRead = scanner_.WordsRead();
    return true;
  }

  /// Scans a whole text on several threads; stops early when the user wants that. `onBytes` is told
  /// of every piece's bytes, with two for a line end, before its words are counted.
  void ScanOnThreads(ByteSource& source, std::function<void(std::int64_t)> onBytes) {
    if (!threaded_) {
      const ThreadedScan::Target target{state_.settings, state_.store, state_.WordsRead};
      threaded_.emplace(target, choices_, lists_, state_.scanThreads);
    }
    threaded_->Scan(source,
                    {[this] { return yield_.YieldFor(yield_.CallsLeft()); }, std::move(onBytes)});
  }

  /// Scans a line of a words file, which is always lower-cased.
  void ScanListLine(std::string_view line) { Scan(PrepareLine(line, false, buffer_)); }

 private:
  void Scan(std::string_view lineBuffer) {
    scanner_.SetWordsRead(state_.WordsRead);
    scanner_.GetWords(lineBuffer);
    state_.WordsRead = scanner_.WordsRead();
  }

  static constexpr std::int64_t kBytesWorthTelling = std::int64_t{64} * 1024;
  static constexpr std::int64_t kLineEndBytes = 2;

  CountState& state_;
  ScanChoices choices_;
  WordLists lists_;
  WordEcho echo_;
  RunYield yield_;
  WordScanner scanner_;
  std::string buffer_;
  std::optional<ThreadedScan> threaded_;
};

}  // namespace quillomat
