// Boxes that hold a path: the dialogs that fill them, and what becomes of a path that is typed.
#pragma once

#include <optional>
#include <string>

#include "app/messages.h"
#include "ui/controls.h"
#include "ui/desktop.h"
#include "ui/main_form.h"

namespace quillomat {

class PathBoxes {
 public:
  /// Both must outlive it.
  PathBoxes(Desktop& desktop, const Messages& messages) : desktop_(desktop), messages_(messages) {}

  /// Asks for a file for a box. The dialog opens in the folder of the box's path, else in the
  /// folder used last, else in the user's documents; again, after a word, where a file is chosen
  /// that the dialog refuses. The box is left as it is.
  [[nodiscard]] std::optional<std::string> ChooseFileFor(const TextBox& box, FileDialog dialog);

  /// The same for a text file that is there.
  [[nodiscard]] std::optional<std::string> ChooseTextFileFor(const TextBox& box, std::string title);

  /// The same for a folder.
  [[nodiscard]] std::optional<std::string> ChooseFolderFor(const TextBox& box,
                                                           const std::string& title);

  /// Asks for the output file, puts it into its box, and the focus where the user needs it.
  void ChooseOutputFile(MainForm& frmMain);

  /// A path that starts at no root becomes a full one, in the folder used last, else in the user's
  /// documents: the program's current folder means nothing to the user. What else a person writes
  /// for a path is understood, too (PathFromTyped). To be called when the box is left.
  void CompletePathIn(TextBox& box);

  /// The user has chosen or named this file or folder: the next dialog opens in the folder where it
  /// lies, unless that is a root.
  void RememberFolderOf(const std::string& path);

  /// Where the file or the folder lies that the user chose or named last; "" for none yet.
  [[nodiscard]] const std::string& LastFolder() const { return lastFolder_; }
  void SetLastFolder(std::string folder) { lastFolder_ = std::move(folder); }

 private:
  [[nodiscard]] std::string UsualFolder();
  [[nodiscard]] std::string FolderToOpen(const TextBox& box);

  Desktop& desktop_;
  const Messages& messages_;
  std::string lastFolder_;
};

}  // namespace quillomat
