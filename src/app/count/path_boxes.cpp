#include "app/count/path_boxes.h"

#include <utility>

#include "app/list/set_the_focus.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "system/file_system.h"
#include "system/output_file.h"
#include "system/paths.h"
#include "system/typed_path.h"
#include "text/caption_table.h"

namespace quillomat {
namespace {

/// The path itself if it is a folder's, else its folder; "" when neither is there.
std::string NearestFolder(const std::string& path) {
  if (FolderExists(path)) return path;
  const std::string folder = FolderPartOf(path);
  return FolderExists(folder) ? folder : std::string();
}

/// A file that is there. What else there is against writing is told when it is written.
bool IsReadOnly(const std::string& path) {
  try {
    if (FileExists(path)) CheckWritable(path);
    return false;
  } catch (const RunTimeError& error) {
    return error.Number() == static_cast<int>(RunTimeErrorNumber::kPermissionDenied) ||
           error.Number() == static_cast<int>(RunTimeErrorNumber::kPathFileAccess);
  }
}

}  // namespace

/// "" where nobody is asked for paths.
std::string PathBoxes::UsualFolder() {
  const std::string documents = desktop_.DocumentsFolder();
  if (documents.empty()) return {};
  return FolderExists(lastFolder_) ? lastFolder_ : documents;
}

std::string PathBoxes::FolderToOpen(const TextBox& box) {
  const std::string usual = UsualFolder();
  const std::string named = NearestFolder(PathFromTyped(usual, box.Text()));
  return named.empty() ? usual : named;
}

std::optional<std::string> PathBoxes::ChooseFileFor(const TextBox& box, FileDialog dialog) {
  dialog.folder = FolderToOpen(box);
  while (std::optional<std::string> path = desktop_.ChooseFile(dialog)) {
    RememberFolderOf(*path);
    if (!dialog.noReadOnlyReturn || !IsReadOnly(*path)) return path;
    dialog.folder = FolderPartOf(*path);
    messages_.Refuse(path->append(kCrLf) + messages_.Text(kFileIsReadOnlyText), dialog.title);
  }
  return std::nullopt;
}

std::optional<std::string> PathBoxes::ChooseTextFileFor(const TextBox& box, std::string title) {
  FileDialog dialog;
  dialog.title = std::move(title);
  dialog.filter = "Any text file (*.*) | *.*";
  dialog.pathMustExist = true;
  dialog.fileMustExist = true;
  dialog.hideReadOnly = true;
  return ChooseFileFor(box, std::move(dialog));
}

std::optional<std::string> PathBoxes::ChooseFolderFor(const TextBox& box,
                                                      const std::string& title) {
  std::optional<std::string> path = desktop_.BrowseForFolder(title, FolderToOpen(box));
  if (path) RememberFolderOf(*path);
  return path;
}

/// The list asks before it overwrites, so the dialog does not.
void PathBoxes::ChooseOutputFile(MainForm& frmMain) {
  TextBox& box = frmMain.txbFile[1];
  FileDialog dialog;
  dialog.mode = FileDialog::Mode::kSave;
  dialog.title = "Specify output file";
  dialog.filter = "Any text file (*.*) | *.*";
  dialog.pathMustExist = true;
  dialog.hideReadOnly = true;
  dialog.noReadOnlyReturn = true;
  if (const auto path = ChooseFileFor(box, dialog)) box.SetText(*path);
  SetTheFocus(frmMain);
}

void PathBoxes::CompletePathIn(TextBox& box) {
  const std::string usual = UsualFolder();
  const std::string full = usual.empty() ? usual : PathFromTyped(usual, box.Text());
  if (full.empty()) return;
  if (full != box.Text()) box.SetText(full);
  RememberFolderOf(full);
}

/// A name that is typed next is most often an output file's, which may not lie in the folder that
/// is counted; and in a root nobody keeps files.
void PathBoxes::RememberFolderOf(const std::string& path) {
  std::string folder = FolderPartOf(path);
  if (FileNamePartOf(path).empty()) folder = FolderPartOf(folder);  // it ends with a separator
  const bool isRoot = FolderPartOf(folder) == folder;
  if (!isRoot && FolderExists(folder)) lastFolder_ = std::move(folder);
}

}  // namespace quillomat
