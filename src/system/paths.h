// The parts of a path, as text: nothing here looks at the disk, except that AbsolutePath,
// IsInFolder and SamePath take the current folder into account for a path that does not start at a
// root.
//
// Paths are UTF-8 on Windows and plain bytes elsewhere. Where "\" is the separator, "/" is one too.
#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// "\" or "/".
[[nodiscard]] char PathSeparator();
[[nodiscard]] bool IsPathSeparator(char character);

/// `folder`, a separator unless it ends with one already, and `name`; just `name` for an empty
/// folder.
[[nodiscard]] std::string JoinPath(std::string_view folder, std::string_view name);

/// What stands before the last separator, which belongs to it only when it is the root ("/a" is in
/// "/", "C:\a" in "C:\"); "" without a separator.
[[nodiscard]] std::string FolderPartOf(std::string_view path);
/// What stands behind the last separator.
[[nodiscard]] std::string FileNamePartOf(std::string_view path);
/// What stands behind the last "." that follows the last separator; "" without one. As it is
/// written.
[[nodiscard]] std::string ExtensionOf(std::string_view nameOrPath);

/// The path as the walk through a folder writes it: in lower case where letter case makes no
/// difference to paths, else unchanged.
[[nodiscard]] std::string PathForWalk(std::string_view path);

/// The path if it starts at a root, else the same path in `folder`, without "." and ".." parts; ""
/// stays "".
[[nodiscard]] std::string FullPathIn(const std::string& folder, const std::string& path);

/// The path from the root on, without "." and ".." parts; "" stays "".
[[nodiscard]] std::string AbsolutePath(const std::string& path);

/// Whether two paths are spelled the same when both are absolute; letter case counts where it
/// counts in paths. Two empty paths name nothing and are not the same.
[[nodiscard]] bool SamePath(const std::string& left, const std::string& right);

/// Whether `path` lies in `folder` itself or, with `includeSubfolders`, anywhere below it: compared
/// part by part, so "/ab/c" does not lie in "/a". A folder does not lie in itself.
[[nodiscard]] bool IsInFolder(const std::string& path, const std::string& folder,
                              bool includeSubfolders);

}  // namespace quillomat
