#include <array>

#include "system/environment.h"
#include "system/file_system.h"
#include "system/native_path.h"

namespace quillomat {
namespace {

// The data folder of the source tree, for builds that may be run from there; else empty.
constexpr const char* kSourceData = QUILLOMAT_SOURCE_DATA;

bool HoldsData(const std::string& folder) {
  return FileExists(JoinPath(folder, "qlav_text.dat")) ||
         FileExists(JoinPath(folder, "cwds_en.txt"));
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
  const std::string shared = JoinPath(JoinPath(FolderPartOf(programFolder), "share"), "quillomat");
  const std::array<std::string, 3> places{programFolder, shared, kSourceData};
  for (const std::string& folder : places) {
    if (!folder.empty() && HoldsData(folder)) return folder;
  }
  return programFolder;
}

}  // namespace quillomat
