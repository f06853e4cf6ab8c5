// The parameters panel: what its commands and boxes do. The values themselves are its controls'.
#pragma once

#include <functional>

#include "app/count/run_context.h"
#include "app/count/word_list_reader.h"

namespace quillomat {

class ParametersPanel {
 public:
  ParametersPanel(const RunContext& context, WordListReader& wordLists)
      : context_(context), wordLists_(wordLists) {}

  /// Connects the panel's controls with what they do. Called once. `initialize` puts the program
  /// into its initial state.
  void Connect(std::function<void()> initialize);

  /// Puts every parameter to its default.
  void SetDefaultValues();

 private:
  void ConnectParameters();
  void ConnectScanningChoice(Control& control);
  void ConnectListingChoice(Control& control);
  void ConnectWordLists();
  void AfterClickThatLeaves(const std::function<void()>& action);
  void ConnectCommands();
  void OnScanningBoxClick(CheckBox& box);
  void OnScanningComboClick(ComboBox& combo, int& before);
  [[nodiscard]] bool MayReadAnew();
  [[nodiscard]] bool ConfirmReRead();
  void SetAllCheckBoxes(CheckState state) const;
  /// Of the check boxes, or of all parameters that are none.
  void SetDefaults(bool checkBoxes) const;
  void FocusClose();
  void Close();

  const RunContext& context_;
  WordListReader& wordLists_;
  std::function<void()> initialize_;
};

}  // namespace quillomat
