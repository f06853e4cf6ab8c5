#include "app/count/path_boxes.h"

#include <utility>

#include "base/text_helpers.h"
#include "system/file_system.h"
#include "system/paths.h"

namespace quillomat {
namespace {

/// "" where nobody is asked for paths.
std::string UsualFolder(const RunContext& context) {
  const std::string documents = context.desktop.DocumentsFolder();
  if (documents.empty()) return {};
  return FolderExists(context.state.lastFolder) ? context.state.lastFolder : documents;
}

/// The path itself if it is a folder's, else its folder; "" when neither is there.
std::string NearestFolder(const std::string& path) {
  if (FolderExists(path)) return path;
  const std::string folder = FolderPartOf(path);
  return FolderExists(folder) ? folder : std::string();
}

std::string FolderToOpen(const TextBox& box, const RunContext& context) {
  const std::string usual = UsualFolder(context);
  const std::string named = NearestFolder(FullPathIn(usual, std::string(TrimBlanks(box.Text()))));
  return named.empty() ? usual : named;
}

}  // namespace

std::optional<std::string> ChooseFileFor(const TextBox& box, FileDialog dialog,
                                         const RunContext& context) {
  dialog.folder = FolderToOpen(box, context);
  std::optional<std::string> path = context.desktop.ChooseFile(dialog);
  if (path) RememberFolderOf(*path, context);
  return path;
}

std::optional<std::string> ChooseFolderFor(const TextBox& box, const std::string& title,
                                           const RunContext& context) {
  std::optional<std::string> path =
      context.desktop.BrowseForFolder(title, FolderToOpen(box, context));
  if (path) RememberFolderOf(*path, context);
  return path;
}

void CompletePathIn(TextBox& box, const RunContext& context) {
  const std::string usual = UsualFolder(context);
  const std::string path(TrimBlanks(box.Text()));
  if (usual.empty() || path.empty()) return;
  const std::string full = FullPathIn(usual, path);
  if (full != path) box.SetText(full);
  RememberFolderOf(full, context);
}

/// A name that is typed next is most often an output file's, which may not lie in the folder that
/// is counted; and in a root nobody keeps files.
void RememberFolderOf(const std::string& path, const RunContext& context) {
  std::string folder = FolderPartOf(path);
  if (FileNamePartOf(path).empty()) folder = FolderPartOf(folder);  // it ends with a separator
  const bool isRoot = FolderPartOf(folder) == folder;
  if (!isRoot && FolderExists(folder)) context.state.lastFolder = std::move(folder);
}

}  // namespace quillomat
