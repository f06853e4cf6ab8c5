#include "sources/folder_walk.h"

#include <algorithm>
#include <optional>

#include "base/run_time_error.h"
#include "sources/wildcard.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

/// The contents of a folder, or nothing when it may not be read.
std::optional<FolderListing> TryToList(const std::string& path) {
  try {
    return ListFolder(path);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

/// False when the walk was stopped.
bool Walk(const std::string& path, const TextOfFolder& folder, const FolderVisitor& visitor) {
  const std::optional<FolderListing> listing = TryToList(path);
  if (!listing) {
    visitor.onUnreadableFolder(path);
    return true;
  }
  for (const std::string& name : listing->files) {
    if (folder.extensions.Admits(name)) {
      visitor.onFile(PathForWalk(JoinPath(path, name)));
    } else if (visitor.onNeverText && folder.extensions.LeavesOutUnasked(name)) {
      visitor.onNeverText(PathForWalk(JoinPath(path, name)));
    } else {
      continue;
    }
    if (visitor.stops()) return false;
  }
  if (!folder.subfolders) return true;
  for (const std::string& name : listing->subfolders) {
    visitor.onSubfolder();
    if (!Walk(JoinPath(path, name), folder, visitor) || visitor.stops()) return false;
  }
  return true;
}

}  // namespace

void WalkFolder(const TextOfFolder& folder, const FolderVisitor& visitor) {
  Walk(folder.path, folder, visitor);
}

bool FolderHasFiles(const std::string& path, std::string_view pattern, bool includeSubfolders,
                    const std::function<bool()>& stops) {
  const FolderListing listing = ListFolder(path);
  const auto fits = [pattern](const std::string& name) { return MatchesWildcard(name, pattern); };
  if (std::ranges::any_of(listing.files, fits)) return true;
  const auto hasFiles = [&](const std::string& name) {
    try {
      if (FolderHasFiles(JoinPath(path, name), pattern, true, stops)) return true;
    } catch (const RunTimeError&) {
      // Nobody knows what it holds.
    }
    return stops();
  };
  return includeSubfolders && std::ranges::any_of(listing.subfolders, hasFiles);
}

}  // namespace quillomat
