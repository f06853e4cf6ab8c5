// A count as the main window makes it: the request is taken from the controls, the window looks on
// and answers, and what came of it goes into the program's state.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/count/progress_bar.h"
#include "app/count/run_context.h"
#include "app/count/window_state.h"
#include "app/count/word_echo.h"
#include "sources/count_observer.h"
#include "sources/count_request.h"
#include "sources/count_result.h"
#include "sources/output_rules.h"

namespace quillomat {

/// The request that the panel and the lists in force make of a source.
[[nodiscard]] CountRequest RequestFromControls(const RunContext& context, CountSource source);

/// Shows on the main window how a count gets on, and passes on the user's wish to stop. The sources
/// add what is their own.
class WindowObserver : public CountObserver {
 public:
  /// `text` is where the words will have come from.
  WindowObserver(const RunContext& context, CountedText text)
      : context_(context),
        text_(std::move(text)),
        echo_(context),
        yield_(context),
        fileProgress_(context.frmMain.lblTotalNumOccurrences) {}

  bool Yield() override { return yield_.Yield(); }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return yield_.CallsLeft(); }
  bool YieldFor(std::uint32_t calls) override { return yield_.YieldFor(calls); }
  void OnNewWord(std::string_view word, std::int32_t numDifferentWords) override {
    echo_.OnNewWord(word, numDifferentWords);
  }

  void OnChecked() override { EnterPhase(context_, RunPhase::kCounting); }
  /// The words of the last count are gone.
  void OnScanBegins() override;
  void OnFileBegins(const FileBegins& file) override;
  void OnProgress(const CountProgress& progress) override;

  [[nodiscard]] bool HasScanBegun() const { return scanHasBegun_; }

 protected:
  [[nodiscard]] const RunContext& Context() const { return context_; }
  [[nodiscard]] ProgressBar& FileProgress() { return fileProgress_; }

 private:
  const RunContext& context_;
  CountedText text_;
  WordEcho echo_;
  RunYield yield_;
  ProgressBar fileProgress_;
  bool unixFile_ = false;
  bool scanHasBegun_ = false;
};

/// Makes the count. Its words, as far as any were looked for, become those of the program; the
/// result is without them.
[[nodiscard]] CountResult CountInWindow(const RunContext& context, const CountRequest& request,
                                        WindowObserver& observer);

}  // namespace quillomat
