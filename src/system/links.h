// Where files are once links are followed, symbolic and hard ones. Paths as in paths.h.
#pragma once

#include <string>

namespace quillomat {

/// As IsInFolder, but by any way: as the paths are spelled, with symbolic links followed on both
/// sides, and by another name of the same file, which may be a link in the folder that leads out of
/// it. Walks through the folder where there is a file at `path`. Never throws: what may not be read
/// holds nothing.
[[nodiscard]] bool LiesInFolder(const std::string& path, const std::string& folder,
                                bool includeSubfolders);

}  // namespace quillomat
