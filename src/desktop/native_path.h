// Our path strings and those of std::filesystem. For the files of this folder.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillomat {

[[nodiscard]] std::filesystem::path ToNativePath(std::string_view path);
[[nodiscard]] std::string FromNativePath(const std::filesystem::path& path);

/// Whether a path can name nothing: it is empty, or has a NUL in it.
[[nodiscard]] bool NamesNothing(std::string_view path);

/// Whether two parts of a path, or two whole paths, are the same name to the system.
[[nodiscard]] bool SamePathText(std::string_view left, std::string_view right);

}  // namespace quillomat
