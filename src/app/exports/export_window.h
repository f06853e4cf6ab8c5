// The window that exports the list: into which file, in which form, which words and columns. All
// words of the list are exported, whatever the text box holds of them.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "app/exports/result_export.h"
#include "app/what_parts_share.h"
#include "export/export_format.h"
#include "ui/event_pump.h"
#include "ui/export_form.h"

namespace quillomat {

/// Answers with the words that a filter shows; nothing while no filter is set.
using FilterQuestion = std::function<std::optional<FilteredWords>()>;

class ExportWindow {
 public:
  /// All must outlive it.
  ExportWindow(ExportForm& frmExport, const UserSide& user, const ProgramFacts& facts,
               EventPump& pump, PathBoxes& paths)
      : frmMain_(user.frmMain),
        frmParams_(user.frmParams),
        frmExport_(frmExport),
        messages_(user.messages),
        run_(facts.run),
        pump_(pump),
        words_(facts.words),
        inForce_(facts.inForce),
        paths_(paths),
        desktop_(user.desktop) {}

  /// Fills the window and connects its commands. Called once.
  void Connect();

  /// Shows the window for the list that stands; without one the user is told.
  void Open();

  /// After a change of the language.
  void ShowCommandCaption();

  void SetFilter(FilterQuestion filter) { filter_ = std::move(filter); }
  /// A filter was set, or is gone.
  void OnFilterChange();

 private:
  void Prepare();
  void SuggestFile();
  void SelectName() const;
  void OfferColumns();
  [[nodiscard]] ExportFormat Format() const;
  void FollowEnding();
  void ShowEnding();
  void ChooseFile();
  void OnExportClick();
  void Export();
  [[nodiscard]] std::optional<ExportWish> TakeWish();
  [[nodiscard]] bool TakeFirst(ExportWish& wish);
  [[nodiscard]] bool TakePath();
  [[nodiscard]] bool MayWrite(const std::string& path);
  [[nodiscard]] bool AskToOverwrite();
  void Write(const ExportWish& wish);
  void ShowRunning(bool running);
  /// Tells what is wrong, and puts the keyboard where it can be mended.
  void Complain(const std::string& text, Control& control);
  [[nodiscard]] std::string Text(int number, std::initializer_list<std::string> values = {}) const;
  void Close();

  MainForm& frmMain_;
  const ParamsForm& frmParams_;
  ExportForm& frmExport_;
  const Messages& messages_;
  RunState& run_;
  EventPump& pump_;
  const CurrentWords& words_;
  const InForce& inForce_;
  PathBoxes& paths_;
  Desktop& desktop_;
  FilterQuestion filter_;
  /// What the window itself has put into the box of the file.
  std::string suggested_;
  std::optional<bool> filesKnown_;
  bool running_ = false;
};

}  // namespace quillomat
