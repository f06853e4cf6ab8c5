// Where files are once symbolic links are followed. Paths as in paths.h.
#pragma once

#include <string>

namespace quillomat {

/// As IsInFolder, as the paths are spelled or with symbolic links followed on both sides. What a
/// file in the folder is called elsewhere is not looked for: that would mean to walk through the
/// folder. Never throws.
[[nodiscard]] bool LiesInFolder(const std::string& path, const std::string& folder,
                                bool includeSubfolders);

}  // namespace quillomat
