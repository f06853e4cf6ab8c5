#include <array>
#include <string_view>

#include "system/environment.h"
#include "system/file_system.h"
#include "system/native_path.h"

namespace quillomat {
namespace {

// The data folder of the source tree, for builds that may be run from there; else empty.
constexpr const char* kSourceData = QUILLOMAT_SOURCE_DATA;
// Where an installation has it, from the program's folder on.
constexpr std::string_view kInstalledData = QUILLOMAT_INSTALLED_DATA;

bool HoldsData(const std::string& folder) {
  return FileExists(JoinPath(folder, "qlav_text.dat")) ||
         FileExists(JoinPath(folder, "cwds_en.txt"));
}

/// The user sees the path of a words file, so it goes up without "..".
std::string InstalledData(std::string programFolder) {
  std::string_view path = kInstalledData;
  for (; path.starts_with("../"); path.remove_prefix(3)) {
    programFolder = FolderPartOf(programFolder);
  }
  return JoinPath(programFolder, std::string(path));
}

}  // namespace

std::string ProgramFolder() {
  return FolderPartOf(ProgramPath());
}

std::string FromProgramFolderOn(const std::string& path) {
  return RootLength(path) > 0 ? path : JoinPath(ProgramFolder(), path);
}

std::string DataFolder() {
  if (const auto folder = EnvironmentVariable("QUILLOMAT_DATA"))
    return FromProgramFolderOn(*folder);
  std::string programFolder = ProgramFolder();
  const std::array<std::string, 3> places{programFolder, InstalledData(programFolder), kSourceData};
  for (const std::string& folder : places) {
    if (!folder.empty() && HoldsData(folder)) return folder;
  }
  return programFolder;
}

}  // namespace quillomat
