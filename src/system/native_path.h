// The spelling of paths, as far as it differs by platform. For the files of this folder.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillomat {

/// Whether a path can name nothing: it is empty, or has a NUL in it.
[[nodiscard]] bool NamesNothing(std::string_view path);

/// How much of the path is its root: the "/" it starts with; on Windows a drive with its separator
/// ("C:\"), the share of a server ("\\server\share\"), or either behind "\\?\". 0 for a path that
/// starts at no root.
[[nodiscard]] std::size_t RootLength(std::string_view path);

/// The path with what it leaves to the current folder (or drive); each name as it is written. The
/// path itself when the current folder cannot be told.
[[nodiscard]] std::string FromRootOn(std::string_view path);

/// Whether two parts of a path, or two whole paths, are the same name to the system.
[[nodiscard]] bool SamePathText(std::string_view left, std::string_view right);

}  // namespace quillomat
