#include "system/links.h"

#include <algorithm>
#include <utility>

#include "base/run_time_error.h"
#include "system/file_system.h"
#include "system/native_disk.h"
#include "system/native_path.h"

namespace quillomat {
namespace {

/// Whether the file that the path leads to is in the folder, or would be if it were there: going up
/// from it, the folder is met.
bool LeadsInto(const std::string& folder, bool includeSubfolders, const std::string& path) {
  std::string above = FolderPartOf(FromRootOn(BehindLinks(path).value_or(path)));
  // There are no more folders above it than its path names; where one is not there, "up" leads
  // nowhere.
  auto left = std::ranges::count_if(above, IsPathSeparator) + 1;
  while (!IsSameFile(above, folder)) {
    if (!includeSubfolders || left-- == 0) return false;
    // The system's own way up: a folder may be known by a link.
    std::string next = JoinPath(above, "..");
    if (IsSameFile(next, above)) return false;
    above = std::move(next);
  }
  return true;
}

/// Whether the file at `path` is one of the folder's.
bool HoldsFile(const std::string& folder, bool includeSubfolders, const std::string& path) {
  FolderListing listing;
  try {
    listing = ListFolder(folder);
  } catch (const RunTimeError&) {
    return false;
  }
  const auto isFile = [&](const std::string& name) {
    return IsSameFile(JoinPath(folder, name), path);
  };
  const auto holdsFile = [&](const std::string& name) {
    return HoldsFile(JoinPath(folder, name), true, path);
  };
  return std::ranges::any_of(listing.files, isFile) ||
         (includeSubfolders && std::ranges::any_of(listing.subfolders, holdsFile));
}

}  // namespace

bool LiesInFolder(const std::string& path, const std::string& folder, bool includeSubfolders) {
  if (NamesNothing(path) || NamesNothing(folder)) return false;
  if (IsInFolder(path, folder, includeSubfolders)) return true;
  if (LeadsInto(folder, includeSubfolders, path)) return true;
  // On Windows other names of a file are rare, and to look for one may mean to walk a whole drive.
  const bool linksAreCommon = PathSeparator() == '/';
  return linksAreCommon && FileLength(path).has_value() &&
         HoldsFile(folder, includeSubfolders, path);
}

}  // namespace quillomat
