// The walk through a folder: its files in the order of their names, then its subfolders.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "sources/count_request.h"

namespace quillomat {

/// What a walk does with what it meets.
struct FolderVisitor {
  std::function<void(const std::string& path)> onFile;
  /// A file that the filter leaves out unasked; may be empty.
  std::function<void(const std::string& path)> onNeverText = {};
  /// A folder below the one that the walk started in.
  std::function<void()> onSubfolder;
  std::function<void(const std::string& path)> onUnreadableFolder;
  /// Asked after every file and every subfolder; true ends the walk.
  std::function<bool()> stops;
};

/// Visits the files that the folder's filter admits, each with its path as PathForWalk writes it.
void WalkFolder(const TextOfFolder& folder, const FolderVisitor& visitor);

/// Whether a file whose name fits `pattern` (wildcard.h) is in the folder or, if asked for,
/// anywhere below it. A subfolder that may not be read holds none; throws RunTimeError when the
/// folder itself may not. `stops` is asked after every subfolder; true ends the walk, with whatever
/// answer.
[[nodiscard]] bool FolderHasFiles(const std::string& path, std::string_view pattern,
                                  bool includeSubfolders, const std::function<bool()>& stops);

}  // namespace quillomat
