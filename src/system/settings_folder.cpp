#include "system/settings_folder.h"

#include "base/run_time_error.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

std::string FolderInSettings(const std::string& folderName) {
  const std::string base = SettingsBaseFolder();
  return JoinPath(base.empty() ? RootFolder() : base, folderName);
}

}  // namespace

std::string PathInSettings(const std::string& fileName, const std::string& folderName) {
  return JoinPath(FolderInSettings(folderName), fileName);
}

std::string SettingsFilePath(const std::string& fileName, const std::string& folderName) {
  const std::string folder = FolderInSettings(folderName);
  try {
    CreateSettingsBaseFolder();
    CreateFolder(folder);
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): opening the file will tell
  }
  return JoinPath(folder, fileName);
}

}  // namespace quillomat
