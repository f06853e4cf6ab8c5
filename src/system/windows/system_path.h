// Paths as the system's calls take them.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// The path from the root on, in the form that the system takes as it is written ("\\?\C:\..."): it
/// may be longer than 260 characters, and its names may end in a blank or a dot. The name of a
/// device
/// ("NUL") is left alone.
[[nodiscard]] std::wstring SystemPath(const std::string& path);

/// Whether a new file or folder may have that name. One that ends in a blank or a dot, or is a
/// device's, would be out of the reach of most programs, so none is made.
[[nodiscard]] bool MayBeMade(const std::string& path);

/// Whether every name of the path is short enough for a disk. Where one is not, systems do not
/// agree on what they report.
[[nodiscard]] bool NamesFit(std::wstring_view systemPath);

/// "NUL", "con", "COM1" and their like, without a folder.
[[nodiscard]] bool IsDeviceName(const std::string& path);

}  // namespace quillomat
