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
#include "app/notices/notice.h"
#include "app/what_parts_share.h"

namespace quillomat {

class NoticeBar {
 public:
  /// All must outlive it.
  NoticeBar(const UserSide& user, const ProgramFacts& facts, const CountRun& countRun)
      : frmMain_(user.frmMain),
        frmParams_(user.frmParams),
        output_(user.output),
        messages_(user.messages),
        run_(facts.run),
        words_(facts.words),
        inForce_(facts.inForce),
        countRun_(countRun),
        desktop_(user.desktop) {}

  /// Connects the line with what it tells of. Called once.
  void Connect();

  /// Shows what holds now. To be called when something has changed that the bar does not see by
  /// itself: the language.
  void Update();
  /// The same, unless a count or a list is at work, behind which it is updated anyway.
  void UpdateWhenIdle();

  // What shows the list as a table, what exports it, and what counts again with the letters of all
  // languages; without one there is no command for it.
  void SetTableShower(std::function<void()> show) { showTable_ = std::move(show); }
  /// What shows the files that were skipped or, of them, those that were left out by design;
  /// without one a text names those that should have been read.
  void SetSkippedShower(std::function<void(bool byDesign)> show) { showSkipped_ = std::move(show); }
  void SetExporter(std::function<void()> exportList) { export_ = std::move(exportList); }
  void SetLetterCounter(std::function<void()> countAll) { countAllLetters_ = std::move(countAll); }
  /// The user looks at the text, or at something else that shows all words.
  void SetTextShown(bool shown);

 private:
  [[nodiscard]] NoticeFacts Facts() const;
  [[nodiscard]] bool TextHoldsList() const;
  void AddTextCounted(NoticeFacts& facts) const;
  void OnOutputChange();
  void Show(const Notice& notice);
  void Hide();
  [[nodiscard]] bool CanDo(NoticeAction action) const;
  void Do(NoticeAction action);
  void OpenPanelAt(Control& control);
  [[nodiscard]] Control& WordsBox(WordListKind kind);
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
  std::function<void(bool byDesign)> showSkipped_;
  std::function<void()> export_;
  std::function<void()> countAllLetters_;
  bool textShown_ = true;
  /// Rows of notices.
  std::set<std::size_t> dismissed_;
  std::size_t shownRow_ = 0;
  std::array<NoticeAction, 2> actions_{};
};

}  // namespace quillomat
