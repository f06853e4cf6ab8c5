// The parameters panel: what its commands and boxes do. The values themselves are its controls'.
#pragma once

#include <functional>

#include "app/count/word_list_reader.h"
#include "app/settings_table.h"
#include "app/what_parts_share.h"

namespace quillomat {

class ParametersPanel {
 public:
  /// All must outlive it.
  ParametersPanel(const UserSide& user, const ProgramFacts& facts, WordListReader& wordLists)
      : frmMain_(user.frmMain),
        frmParams_(user.frmParams),
        messages_(user.messages),
        run_(facts.run),
        words_(facts.words),
        flags_(facts.flags),
        wordLists_(wordLists) {}

  /// Connects the panel's controls with what they do. Called once. `initialize` puts the program
  /// into its initial state.
  void Connect(std::function<void()> initialize);

  /// Puts every parameter to its default.
  void SetDefaultValues() const;

  /// From now on the letters of all languages make words. It is not asked whether the text may be
  /// read anew: whoever calls it counts.
  void AllowAllLetters();

 private:
  void ConnectParameters();
  void ConnectScanningChoice(const Setting& setting, Control& control);
  void ConnectListingChoice(Control& control);
  void ConnectWordLists();
  void AfterClickThatLeaves(const std::function<void()>& action);
  void ConnectCommands();
  void OnScanningBoxClick(CheckBox& box);
  [[nodiscard]] bool FilesWereRead() const;
  [[nodiscard]] bool MayReadAnew();
  [[nodiscard]] bool ConfirmReRead();
  void SetAllCheckBoxes(CheckState state) const;
  void FocusClose();
  void Open();
  void Close();

  MainForm& frmMain_;
  ParamsForm& frmParams_;
  const Messages& messages_;
  const RunState& run_;
  CurrentWords& words_;
  WindowFlags& flags_;
  WordListReader& wordLists_;
  std::function<void()> initialize_;
};

}  // namespace quillomat
