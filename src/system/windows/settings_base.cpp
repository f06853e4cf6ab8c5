#include <memory>
#include <shlobj.h>
#include <windows.h>

#include "system/environment.h"
#include "system/file_system.h"
#include "system/settings_folder.h"
#include "system/windows/drives.h"
#include "system/windows/wide_text.h"

namespace quillomat {
namespace {

struct TaskMemoryFreer {
  void operator()(wchar_t* memory) const { CoTaskMemFree(memory); }
};

}  // namespace

std::string FirstFixedDrive() {
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
    const std::wstring drive{letter, L':'};
    if (GetDriveTypeW((drive + L'\\').c_str()) == DRIVE_FIXED) return FromWide(drive);
  }
  return {};
}

std::string SettingsBaseFolder() {
  if (const auto configured = EnvironmentVariable("QUILLOMAT_SETTINGS")) {
    return FromProgramFolderOn(*configured);
  }
  wchar_t* found = nullptr;
  const HRESULT result = SHGetKnownFolderPath(FOLDERID_RoamingAppData, 0, nullptr, &found);
  const std::unique_ptr<wchar_t, TaskMemoryFreer> folder(found);
  return SUCCEEDED(result) && *folder != L'\0' ? FromWide(folder.get()) : FirstFixedDrive();
}

// The folder of application data comes with the user's account.
void CreateSettingsBaseFolder() {}

}  // namespace quillomat
