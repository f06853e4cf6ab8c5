// A count as the main window makes it: the request is taken from the controls, the window looks on
// and answers, and what came of it becomes the program's words.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "app/count/count_basis.h"
#include "app/count/progress_bar.h"
#include "app/count/word_echo.h"
#include "app/exports/setting_facts.h"
#include "app/what_parts_share.h"
#include "sources/count_observer.h"
#include "sources/count_request.h"
#include "sources/count_result.h"

namespace quillomat {

/// The request that the panel and the lists in force make of a source.
[[nodiscard]] CountRequest RequestFromControls(ParamsForm& frmParams, const InForce& inForce,
                                               CountSource source);

/// What a count in the window works with: the sources hand it to their observers.
struct WindowCount {
  MainForm& frmMain;
  const ParamsForm& frmParams;
  OutputBox& output;
  const Messages& messages;
  RunState& run;
  CurrentWords& words;
  InForce& inForce;
};
[[nodiscard]] inline WindowCount WindowCountOf(const UserSide& user, const ProgramFacts& facts) {
  return {user.frmMain, user.frmParams, user.output,  user.messages,
          facts.run,    facts.words,    facts.inForce};
}

/// Shows on the main window how a count gets on, and passes on the user's wish to stop. The sources
/// add what is their own.
class WindowObserver : public CountObserver {
 public:
  /// `text` is where the words will have come from. The count goes by what the windows say now.
  WindowObserver(const WindowCount& count, CountedText text)
      : count_(count),
        text_(std::move(text)),
        basis_(CountBasisOf(count.frmMain, count.frmParams, count.inForce)),
        settings_(SettingFactsOf(text_, count.inForce, count.frmMain, count.frmParams)),
        countOnlyMode_(count.inForce.lists.HasCountOnlyWords()),
        echo_(count.frmMain, count.output, count.messages, count.inForce.settings),
        fileProgress_(count.frmMain.lblTotalNumOccurrences) {}

  bool Yield() override { return count_.run.Yield(); }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return count_.run.CallsLeft(); }
  bool YieldFor(std::uint32_t calls) override { return count_.run.YieldFor(calls); }
  void OnNewWord(std::string_view word, std::int32_t numDifferentWords) override {
    echo_.OnNewWord(word, numDifferentWords);
  }

  void OnChecked() override { count_.run.EnterPhase(RunPhase::kCounting); }
  /// The words of the last count are gone, and what it went by: until now all stands as it was, as
  /// the count may be refused.
  void OnScanBegins() override;
  void OnFileBegins(const FileBegins& file) override;
  void OnProgress(const CountProgress& progress) override;

  [[nodiscard]] bool HasScanBegun() const { return scanHasBegun_; }

 protected:
  [[nodiscard]] const WindowCount& Count() const { return count_; }
  [[nodiscard]] ProgressBar& FileProgress() { return fileProgress_; }

 private:
  const WindowCount& count_;
  CountedText text_;
  CountBasis basis_;
  std::vector<ExportFact> settings_;
  bool countOnlyMode_;
  WordEcho echo_;
  ProgressBar fileProgress_;
  bool unixFile_ = false;
  bool scanHasBegun_ = false;
};

/// Makes the count. Its words, as far as any were looked for, become those of the program; the
/// result is without them.
[[nodiscard]] CountResult CountInWindow(const WindowCount& count, const CountRequest& request,
                                        WindowObserver& observer);

}  // namespace quillomat
