#include "cli/input_choice.h"

#include <algorithm>
#include <utility>

#include "base/run_time_error.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

using Kind = InputChoice::Kind;
using Fault = std::optional<std::string>;

Fault FindFolderFault(const std::string& path) {
  if (FolderExists(path)) return std::nullopt;
  if (FileExists(path)) return path + " is a file; count it with --file";
  return path + " does not exist; check the path";
}

Fault FindFileFault(const std::string& path) {
  if (FolderExists(path)) return path + " is a folder; count its files with --folder";
  if (!FileExists(path)) return path + " does not exist; check the path";
  if (!FileLength(path)) return std::nullopt;  // who opens a pipe must read it
  try {
    const InputFile file(path);
  } catch (const RunTimeError& error) {
    return path + " cannot be read: " + error.Description() + "; check its permissions";
  }
  return std::nullopt;
}

}  // namespace

bool IsStandardInput(const std::string& path) {
  return path == "-";
}

std::string NameOf(const std::string& path) {
  return IsStandardInput(path) ? "standard input" : path;
}

std::string InputChoice::Name() const {
  if (kind == Kind::kFolder) return paths.front();
  if (paths.size() == 1) return NameOf(paths.front());
  return std::to_string(paths.size()) + " paths";
}

bool InputChoice::IsNamed(const std::string& path) const {
  return kind != Kind::kFolder && std::ranges::find(paths, path) != paths.end();
}

CountedText InputChoice::AsText(bool withSubfolders) const {
  std::vector<std::string> read = paths;
  if (kind != Kind::kFolder) std::ranges::replace_if(read, IsStandardInput, kStandardInputPath);
  switch (kind) {
    case Kind::kFile:
      return {CountedText::Source::kFile, read.front()};
    case Kind::kFolder:
      return {CountedText::Source::kFolder, paths.front(), withSubfolders};
    case Kind::kPaths:
      return {CountedText::Source::kPaths, "", withSubfolders, std::move(read)};
    default:
      return {CountedText::Source::kClipboard};
  }
}

InputChoice InputOf(const CommandLine& options) {
  if (options.explain) return {Kind::kClipboard, {*options.explain}};
  if (options.file) return {Kind::kFile, {*options.file}};
  if (options.folder) return {Kind::kFolder, {*options.folder}};
  if (options.text) return {Kind::kClipboard, {*options.text}};
  const std::vector<std::string>& paths = options.paths;
  const bool isFolder =
      paths.size() == 1 && !IsStandardInput(paths.front()) && FolderExists(paths.front());
  return {isFolder ? Kind::kFolder : Kind::kPaths, paths};
}

Fault FindInputFault(const InputChoice& input) {
  if (input.kind == Kind::kFolder) return FindFolderFault(input.paths.front());
  for (const std::string& path : input.paths) {
    if (IsStandardInput(path)) continue;
    if (input.kind == Kind::kPaths && FolderExists(path)) continue;
    if (Fault fault = FindFileFault(path)) return fault;
  }
  return std::nullopt;
}

}  // namespace quillomat
