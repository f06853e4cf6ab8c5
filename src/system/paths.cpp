#include "system/paths.h"

#include <algorithm>
#include <vector>

#include "system/native_path.h"

namespace quillomat {
namespace {

/// The byte position behind the last separator; 0 without one.
std::size_t FileNameStart(std::string_view path) {
  const auto separator = std::find_if(path.rbegin(), path.rend(), IsPathSeparator);
  return static_cast<std::size_t>(path.rend() - separator);
}

/// A path from the root on, without "." and "..".
struct PathParts {
  std::string root;
  std::vector<std::string_view> names;
};

void AddName(std::vector<std::string_view>& names, std::string_view name) {
  if (name.empty() || name == ".") return;
  if (name != "..") {
    names.push_back(name);
  } else if (!names.empty()) {
    names.pop_back();
  }
}

/// `complete` is a path from the root on, and outlives the parts.
PathParts PartsOf(std::string_view complete) {
  const std::size_t rootLength = RootLength(complete);
  PathParts parts{std::string(complete.substr(0, rootLength)), {}};
  if (!parts.root.empty() && !IsPathSeparator(parts.root.back())) parts.root += PathSeparator();
  std::string_view rest = complete.substr(rootLength);
  while (!rest.empty()) {
    const auto separator = std::ranges::find_if(rest, IsPathSeparator);
    const auto length = static_cast<std::size_t>(separator - rest.begin());
    AddName(parts.names, rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }
  return parts;
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
  const std::size_t rootLength = std::min(RootLength(path), nameStart);
  return std::string(path.substr(0, std::max(nameStart - 1, rootLength)));
}

std::string FileNamePartOf(std::string_view path) {
  return std::string(path.substr(FileNameStart(path)));
}

std::string ExtensionOf(std::string_view nameOrPath) {
  const std::string_view name = nameOrPath.substr(FileNameStart(nameOrPath));
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string() : std::string(name.substr(dot + 1));
}

std::string FullPathIn(const std::string& folder, const std::string& path) {
  if (NamesNothing(path) || RootLength(path) > 0) return path;
  return AbsolutePath(JoinPath(folder, path));
}

std::string AbsolutePath(const std::string& path) {
  if (NamesNothing(path)) return path;
  const std::string complete = FromRootOn(path);
  const PathParts parts = PartsOf(complete);
  std::string absolute = parts.root;
  for (const std::string_view name : parts.names) absolute = JoinPath(absolute, name);
  return absolute;
}

bool SamePath(const std::string& left, const std::string& right) {
  if (NamesNothing(left) || NamesNothing(right)) return false;
  return SamePathText(AbsolutePath(left), AbsolutePath(right));
}

bool IsInFolder(const std::string& path, const std::string& folder, bool includeSubfolders) {
  if (NamesNothing(path) || NamesNothing(folder)) return false;
  const std::string completePath = FromRootOn(path);
  const std::string completeFolder = FromRootOn(folder);
  const PathParts inner = PartsOf(completePath);
  const PathParts outer = PartsOf(completeFolder);
  if (!SamePathText(inner.root, outer.root) || inner.names.size() <= outer.names.size()) {
    return false;
  }
  if (!std::equal(outer.names.begin(), outer.names.end(), inner.names.begin(), SamePathText)) {
    return false;
  }
  return includeSubfolders || inner.names.size() == outer.names.size() + 1;
}

}  // namespace quillomat
