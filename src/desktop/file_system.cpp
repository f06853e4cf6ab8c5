#include "desktop/file_system.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "base/letter_case.h"
#include "desktop/native_path.h"
#include "desktop/output_file.h"
#include "desktop/system_error.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;

fs::file_status StatusOf(const std::string& path) {
  if (NamesNothing(path)) return fs::file_status(fs::file_type::not_found);
  std::error_code error;
  return fs::status(ToNativePath(path), error);
}

/// Refuses a path that would be cut short, or be the current folder, on its way to the system.
fs::path UsablePath(const std::string& path, FileAction action) {
  if (NamesNothing(path)) {
    throw ToRunTimeError(make_error_code(std::errc::no_such_file_or_directory), action, path);
  }
  return ToNativePath(path);
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

/// Asks no more of the system than the folder told already, so that a file which may not even be
/// looked at is listed all the same.
void AddEntry(const fs::directory_entry& entry, FolderListing& listing) {
  std::error_code error;
  const bool isLink = entry.is_symlink(error);
  if (entry.is_regular_file(error)) {
    listing.files.push_back(FromNativePath(entry.path().filename()));
  } else if (!isLink && entry.is_directory(error)) {
    listing.subfolders.push_back(FromNativePath(entry.path().filename()));
  }
}

/// The file itself when the path is a link to one, so that the link survives its replacement.
fs::path BehindLinks(const fs::path& path) {
  std::error_code error;
  const fs::path target = fs::canonical(path, error);
  return error ? path : target;
}

/// A name beside `target` that no other writer uses at the same time.
std::string FreshNameBeside(const fs::path& target) {
  std::array<char, 8> digits{};
  std::random_device random;
  const auto end = std::to_chars(digits.begin(), digits.end(), random(), 16).ptr;
  return FromNativePath(target) + '.' + std::string(digits.begin(), end) + ".new";
}

void MoveOver(const std::string& fresh, const fs::path& target) {
  std::error_code error;
  const fs::file_status before = fs::status(target, error);
  if (fs::exists(before)) fs::permissions(ToNativePath(fresh), before.permissions(), error);
  fs::rename(ToNativePath(fresh), target, error);
  if (error) throw ToRunTimeError(error, FileAction::kOpenToWrite, FromNativePath(target));
}

}  // namespace

bool FileExists(const std::string& path) {
  const fs::file_status status = StatusOf(path);
  return fs::status_known(status) && fs::exists(status) && !fs::is_directory(status);
}

bool FolderExists(const std::string& path) {
  return fs::is_directory(StatusOf(path));
}

std::optional<std::int64_t> FileLength(const std::string& path) {
  if (NamesNothing(path)) return std::nullopt;
  std::error_code error;
  const std::uintmax_t bytes = fs::file_size(ToNativePath(path), error);
  if (error) return std::nullopt;
  return static_cast<std::int64_t>(bytes);
}

std::int64_t FileLengthOrThrow(const std::string& path) {
  const fs::path native = UsablePath(path, FileAction::kOpenToRead);
  std::error_code error;
  const std::uintmax_t bytes = fs::file_size(native, error);
  if (fs::is_directory(StatusOf(path))) error = make_error_code(std::errc::is_a_directory);
  if (error) throw ToRunTimeError(error, FileAction::kOpenToRead, path);
  return static_cast<std::int64_t>(bytes);
}

bool IsSameFile(const std::string& left, const std::string& right) {
  if (NamesNothing(left) || NamesNothing(right)) return false;
  std::error_code error;
  const bool same = fs::equivalent(ToNativePath(left), ToNativePath(right), error);
  return error ? SamePath(left, right) : same;
}

FolderListing ListFolder(const std::string& path) {
  FolderListing listing;
  std::error_code error;
  fs::directory_iterator entry(UsablePath(path, FileAction::kUseFolder), error);
  while (!error && entry != fs::directory_iterator()) {
    AddEntry(*entry, listing);
    entry.increment(error);
  }
  if (error) throw ToRunTimeError(error, FileAction::kUseFolder, path);
  SortByName(listing.files);
  SortByName(listing.subfolders);
  return listing;
}

void CreateFolder(const std::string& path) {
  const fs::path native = UsablePath(path, FileAction::kUseFolder);
  std::error_code error;
  fs::create_directory(native, error);
  if (FileExists(path)) error = make_error_code(std::errc::file_exists);
  if (error) throw ToRunTimeError(error, FileAction::kUseFolder, path);
}

void SetCurrentFolder(const std::string& path) {
  std::error_code error;
  fs::current_path(UsablePath(path, FileAction::kUseFolder), error);
  if (error) throw ToRunTimeError(error, FileAction::kUseFolder, path);
}

std::string RootFolder() {
  return {PathSeparator()};
}

void ReplaceFile(const std::string& path, std::string_view contents) {
  const fs::path target = BehindLinks(UsablePath(path, FileAction::kOpenToWrite));
  const std::string fresh = FreshNameBeside(target);
  try {
    OutputFile file(fresh);
    file.Write(contents);
    file.Close();
    MoveOver(fresh, target);
  } catch (...) {
    std::error_code ignored;
    fs::remove(ToNativePath(fresh), ignored);
    throw;
  }
}

}  // namespace quillomat
