#include "system/file_system.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "base/letter_case.h"
#include "system/native_disk.h"
#include "system/native_path.h"
#include "system/output_file.h"
#include "system/system_error.h"

namespace quillomat {
namespace {

ItemKind KindOf(const std::string& path) {
  return NamesNothing(path) ? ItemKind::kNothing : KindOfItem(path);
}

/// A path that names nothing would be cut short, or be the current folder, on its way to the
/// system.
void RefuseIfItNamesNothing(const std::string& path) {
  if (!NamesNothing(path)) return;
  throw ToRunTimeError(make_error_code(std::errc::no_such_file_or_directory),
                       FileAction::kUseFolder, path);
}

void ThrowIfSet(const std::error_code& error, const std::string& path) {
  if (error) throw ToRunTimeError(error, FileAction::kUseFolder, path);
}

void SortByName(std::vector<std::string>& names) {
  std::vector<std::pair<std::string, std::string>> keyed;
  keyed.reserve(names.size());
  for (std::string& name : names) {
    std::string key = LowerCase(name);
    keyed.emplace_back(std::move(key), std::move(name));
  }
  std::ranges::sort(keyed);
  std::ranges::transform(keyed, names.begin(), [](auto& entry) { return std::move(entry.second); });
}

}  // namespace

bool FileExists(const std::string& path) {
  return KindOf(path) == ItemKind::kFile;
}

bool FolderExists(const std::string& path) {
  return KindOf(path) == ItemKind::kFolder;
}

std::optional<std::int64_t> FileLength(const std::string& path) {
  if (NamesNothing(path)) return std::nullopt;
  std::error_code error;
  const std::int64_t bytes = LengthOfFile(path, error);
  if (error) return std::nullopt;
  return bytes;
}

bool IsSameFile(const std::string& left, const std::string& right) {
  if (NamesNothing(left) || NamesNothing(right)) return false;
  const std::optional<FileIdentity> one = IdentityOfItem(left);
  const std::optional<FileIdentity> other = IdentityOfItem(right);
  return one && other ? one == other : SamePath(left, right);
}

std::optional<FileIdentity> IdentityOf(const std::string& path) {
  return NamesNothing(path) ? std::nullopt : IdentityOfItem(path);
}

FolderListing ListFolder(const std::string& path) {
  RefuseIfItNamesNothing(path);
  std::error_code error;
  FolderListing listing = ItemsOfFolder(path, error);
  ThrowIfSet(error, path);
  SortByName(listing.files);
  SortByName(listing.subfolders);
  return listing;
}

void CreateFolder(const std::string& path) {
  RefuseIfItNamesNothing(path);
  std::error_code error;
  MakeFolder(path, error);
  if (FileExists(path)) error = make_error_code(std::errc::file_exists);
  ThrowIfSet(error, path);
}

void SetCurrentFolder(const std::string& path) {
  RefuseIfItNamesNothing(path);
  std::error_code error;
  EnterFolder(path, error);
  ThrowIfSet(error, path);
}

std::string RootFolder() {
  return {PathSeparator()};
}

void ReplaceContents(const std::string& path, std::string_view contents) {
  OutputFile file(path);
  file.Write(contents);
  file.Close();
}

}  // namespace quillomat
