// Where files are once symbolic links are followed. Paths as in paths.h.
#pragma once

#include <string>

namespace quillomat {

/// As IsInFolder, as the paths are spelled or with symbolic links followed on both sides. What a
/// file in the folder is called elsewhere is not looked for: that would mean to walk through the
/// folder. Never throws.
[[nodiscard]] bool LiesInFolder(const std::string& path, const std::string& folder,
                                bool includeSubfolders);

/// Whether who writes both paths writes one file: as IsSameFile, and where nothing is there yet, by
/// the folder and the name that the links lead to. Never throws.
[[nodiscard]] bool LeadToOneFile(const std::string& left, const std::string& right);

}  // namespace quillomat
