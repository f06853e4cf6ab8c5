// Where the user's settings are kept.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// The maker's folder in the base folder of the user's settings.
inline constexpr std::string_view kSettingsFolderName = "Orvandel Systems";

/// The base folder. On Windows: %QUILLOMAT_SETTINGS% if it is set (see FromProgramFolderOn), else
/// per-user application data, else the first fixed drive. Elsewhere: $XDG_CONFIG_HOME if it is an
/// absolute path, else .config in the home folder. "" when there is none. Creates nothing.
[[nodiscard]] std::string SettingsBaseFolder();

/// The path of a file in a folder of the base folder, e.g. ("qlav.usr", "Orvandel Systems").
/// Creates nothing. Without a base folder it starts at the root.
[[nodiscard]] std::string PathInSettings(const std::string& fileName,
                                         const std::string& folderName);

/// Creates the base folder if it is missing, with access for its owner alone. Failure is silent.
void CreateSettingsBaseFolder();

/// As PathInSettings, and creates the folder if it is missing (one level; the base folder too,
/// where users need not have one). A folder that cannot be created shows when the file is opened.
[[nodiscard]] std::string SettingsFilePath(const std::string& fileName,
                                           const std::string& folderName);

}  // namespace quillomat
