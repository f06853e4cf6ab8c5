#include "desktop/paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "desktop/native_path.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;

/// The byte position behind the last separator; 0 without one.
std::size_t FileNameStart(std::string_view path) {
  const auto separator = std::find_if(path.rbegin(), path.rend(), IsPathSeparator);
  return static_cast<std::size_t>(path.rend() - separator);
}

/// From the root on, without ".", ".." and a separator at the end.
fs::path Normalised(const std::string& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(ToNativePath(path), error);
  const fs::path normal = (error ? ToNativePath(path) : absolute).lexically_normal();
  return normal.has_relative_path() && !normal.has_filename() ? normal.parent_path() : normal;
}

}  // namespace

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.empty() && !IsPathSeparator(path.back())) path.push_back(PathSeparator());
  return path.append(name);
}

std::string FolderPartOf(std::string_view path) {
  const std::size_t nameStart = FileNameStart(path);
  if (nameStart == 0) return {};
  const std::size_t rootLength = FromNativePath(ToNativePath(path).root_path()).size();
  return std::string(path.substr(0, std::max(nameStart - 1, std::min(rootLength, nameStart))));
}

std::string FileNamePartOf(std::string_view path) {
  return std::string(path.substr(FileNameStart(path)));
}

std::string ExtensionOf(std::string_view nameOrPath) {
  const std::string_view name = nameOrPath.substr(FileNameStart(nameOrPath));
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string() : std::string(name.substr(dot + 1));
}

std::string AbsolutePath(const std::string& path) {
  return NamesNothing(path) ? path : FromNativePath(Normalised(path));
}

bool SamePath(const std::string& left, const std::string& right) {
  if (NamesNothing(left) || NamesNothing(right)) return false;
  return SamePathText(AbsolutePath(left), AbsolutePath(right));
}

bool IsInFolder(const std::string& path, const std::string& folder, bool includeSubfolders) {
  if (NamesNothing(path) || NamesNothing(folder)) return false;
  const fs::path inner = Normalised(path);
  const fs::path outer = Normalised(folder);
  auto innerPart = inner.begin();
  for (const fs::path& outerPart : outer) {
    if (innerPart == inner.end()) return false;
    if (!SamePathText(FromNativePath(*innerPart), FromNativePath(outerPart))) return false;
    ++innerPart;
  }
  const auto partsBelow = std::distance(innerPart, inner.end());
  return includeSubfolders ? partsBelow > 0 : partsBelow == 1;
}

}  // namespace quillomat
