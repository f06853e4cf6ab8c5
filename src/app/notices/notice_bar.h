// The line above the list that says what the list does not show by itself: the most important
// notice that holds (notice.h), with its commands. One that is closed stays away until the next
// count, and makes place for the next.
#pragma once

#include <array>
#include <functional>
#include <set>
#include <string>
#include <utility>

#include "app/count/count_run.h"
#include "app/count/in_force.h"
#include "app/count/run_state.h"
#include "app/list/current_words.h"
#include "app/list/output_box.h"
#include "app/messages.h"
#include "app/notices/notice.h"
#include "ui/desktop.h"
#include "ui/main_form.h"
#include "ui/params_form.h"

namespace quillomat {

class NoticeBar {
 public:
  /// All must outlive it.
  NoticeBar(MainForm& frmMain, ParamsForm& frmParams, const OutputBox& output,
            const Messages& messages, RunState& run, const CurrentWords& words,
            const InForce& inForce, const CountRun& countRun, Desktop& desktop)
      : frmMain_(frmMain),
        frmParams_(frmParams),
        output_(output),
        messages_(messages),
        run_(run),
        words_(words),
        inForce_(inForce),
        countRun_(countRun),
        desktop_(desktop) {}

  /// Connects the line with what it tells of. Called once.
  void Connect();

  /// Shows what holds now. To be called when something has changed that the bar does not see by
  /// itself: the language.
  void Update();

  // What shows the list as a table, what exports it, and what counts again with the letters of all
  // languages; without one there is no command for it.
  void SetTableShower(std::function<void()> show) { showTable_ = std::move(show); }
  void SetExporter(std::function<void()> exportList) { export_ = std::move(exportList); }
  void SetLetterCounter(std::function<void()> countAll) { countAllLetters_ = std::move(countAll); }
  /// The user looks at the text, or at something else that shows all words.
  void SetTextShown(bool shown);

 private:
  [[nodiscard]] NoticeFacts Facts() const;
  [[nodiscard]] bool TextHoldsList() const;
  void AddTextCounted(NoticeFacts& facts) const;
  void UpdateWhenIdle();
  void OnOutputChange();
  void Show(const Notice& notice);
  void Hide();
  [[nodiscard]] bool CanDo(NoticeAction action) const;
  void Do(NoticeAction action);
  void Dismiss();
  void ShowSkipped();

  MainForm& frmMain_;
  ParamsForm& frmParams_;
  const OutputBox& output_;
  const Messages& messages_;
  RunState& run_;
  const CurrentWords& words_;
  const InForce& inForce_;
  const CountRun& countRun_;
  Desktop& desktop_;
  std::function<void()> showTable_;
  std::function<void()> export_;
  std::function<void()> countAllLetters_;
  bool textShown_ = true;
  /// Rows of notices.
  std::set<std::size_t> dismissed_;
  std::size_t shownRow_ = 0;
  std::array<NoticeAction, 2> actions_{};
};

}  // namespace quillomat
