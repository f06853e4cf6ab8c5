// The main window's rows that say where the text comes from and where the list goes: the source's
// buttons, the input file, the folder with its file extensions, the output file.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/count/file_extensions.h"
#include "app/what_parts_share.h"

namespace quillomat {

class SourceRows {
 public:
  /// All must outlive it.
  SourceRows(const UserSide& user, const RunState& run, const WindowFlags& flags,
             const NamedPaths& named, FileExtensions& extensions)
      : frmMain_(user.frmMain),
        output_(user.output),
        messages_(user.messages),
        run_(run),
        controls_(user.controls),
        inputRow_(named.inputRow),
        paths_(named.paths),
        extensions_(extensions),
        flags_(flags) {}

  /// Connects the rows' controls with what they do. Called once.
  void Connect();

  /// Makes a file or a folder the text to be counted, as when it is dropped on the window. A path
  /// that is neither is taken for a file, and told of. Nothing happens while a run is at work.
  void ChooseText(const std::string& path);

  /// What was dropped on the window: one path is chosen (ChooseText); for several, or for none as
  /// with a piece of text, the user is told what can be dropped.
  void TakeDrop(const std::vector<std::string>& paths);

 private:
  void ConnectSource();
  void ConnectFiles();
  void ConnectFolder();
  void SelectSourceOf(const TextBox& box, OptionButton& source);
  void ChooseInputFile();
  void CheckFolder() const;
  void LeaveExtensions(ExtensionList list);
  /// After the click that is being carried out, if the program goes on then.
  void AfterClick(const std::function<void()>& action);
  [[nodiscard]] bool IsClickingForTheFolder() const;

  MainForm& frmMain_;
  OutputBox& output_;
  const Messages& messages_;
  const RunState& run_;
  WindowControls& controls_;
  InputFileRow& inputRow_;
  PathBoxes& paths_;
  FileExtensions& extensions_;
  const WindowFlags& flags_;
  /// A source is being selected because its row is filled in by hand.
  bool followingTheHand_ = false;
};

}  // namespace quillomat
