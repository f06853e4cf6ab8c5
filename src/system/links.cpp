#include "system/links.h"

#include <algorithm>
#include <utility>

#include "system/file_system.h"
#include "system/native_disk.h"
#include "system/native_path.h"

namespace quillomat {
namespace {

/// From its root on, and not a link.
std::string PlaceOf(const std::string& path) {
  return FromRootOn(BehindLinks(path).value_or(path));
}

/// Whether the file that the path leads to is in the folder, or would be if it were there: going up
/// from it, the folder is met.
bool LeadsInto(const std::string& folder, bool includeSubfolders, const std::string& path) {
  std::string above = FolderPartOf(PlaceOf(path));
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

}  // namespace

bool LiesInFolder(const std::string& path, const std::string& folder, bool includeSubfolders) {
  if (NamesNothing(path) || NamesNothing(folder)) return false;
  return IsInFolder(path, folder, includeSubfolders) || LeadsInto(folder, includeSubfolders, path);
}

bool LeadToOneFile(const std::string& left, const std::string& right) {
  if (NamesNothing(left) || NamesNothing(right)) return false;
  if (IsSameFile(left, right)) return true;
  const std::string one = PlaceOf(left);
  const std::string other = PlaceOf(right);
  return SamePathText(FileNamePartOf(one), FileNamePartOf(other)) &&
         IsSameFile(FolderPartOf(one), FolderPartOf(other));
}

}  // namespace quillomat
