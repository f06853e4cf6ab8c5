// The main window: what its commands, boxes and labels do.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/count/count_run.h"
#include "app/count/run_context.h"

namespace quillomat {

class MainWindow {
 public:
  MainWindow(const RunContext& context, CountRun& countRun)
      : context_(context), countRun_(countRun) {}

  /// Connects the window's controls with what they do. Called once.
  void Connect();

  /// Makes a file or a folder the text to be counted, as when it is dropped on the window. A path
  /// that is neither is taken for a file, and told of. Nothing happens while a run is at work.
  void ChooseText(const std::string& path);

  /// What was dropped on the window: one path is chosen (ChooseText); for several, or for none as
  /// with a piece of text, the user is told what can be dropped.
  void TakeDrop(const std::vector<std::string>& paths);

  /// What is said when something is not found in the output text box, which may hold but a part of
  /// the list.
  [[nodiscard]] std::string NotFoundText() const;

  /// Fills the combo boxes of word orders and display formats and selects the first items.
  void FillListCombos();

 private:
  void ConnectSource();
  void ConnectFiles();
  void ConnectFolder();
  void ConnectOutput();
  void ConnectNotices();
  void CopyOutputToClipboard();
  void OnSuppressWordsClick();
  void SelectSourceOf(const TextBox& box, OptionButton& source);
  void CheckFolder();
  void LeaveExtensions(ExtensionList list);
  /// After the click that is being carried out, if the program goes on then.
  void AfterClick(const std::function<void()>& action);
  [[nodiscard]] bool IsClickingForTheFolder() const;
  void ChooseInputFile();
  void ChooseOutputFile();

  const RunContext& context_;
  CountRun& countRun_;
  /// A source is being selected because its row is filled in by hand.
  bool followingTheHand_ = false;
};

}  // namespace quillomat
