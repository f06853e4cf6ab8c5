#include "desktop/native_disk.h"

#include <filesystem>

namespace quillomat {
namespace {

namespace fs = std::filesystem;

/// Asks no more of the system than the folder told already, so that a file which may not even be
/// looked at is listed all the same.
void AddItem(const fs::directory_entry& entry, FolderListing& listing) {
  std::error_code error;
  const bool isLink = entry.is_symlink(error);
  if (entry.is_regular_file(error)) {
    listing.files.push_back(entry.path().filename().native());
  } else if (!isLink && entry.is_directory(error)) {
    listing.subfolders.push_back(entry.path().filename().native());
  }
}

}  // namespace

// There are none, only folders that nothing is mounted on.
void LetDrivesBeEmpty() {}

ItemKind KindOfItem(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::status_known(status) || !fs::exists(status)) return ItemKind::kNothing;
  return fs::is_directory(status) ? ItemKind::kFolder : ItemKind::kFile;
}

std::int64_t LengthOfFile(const std::string& path, std::error_code& error) {
  return static_cast<std::int64_t>(fs::file_size(path, error));
}

bool AreSameItem(const std::string& left, const std::string& right, std::error_code& error) {
  return fs::equivalent(left, right, error);
}

FolderListing ItemsOfFolder(const std::string& path, std::error_code& error) {
  FolderListing listing;
  fs::directory_iterator entry(path, error);
  while (!error && entry != fs::directory_iterator()) {
    AddItem(*entry, listing);
    entry.increment(error);
  }
  return listing;
}

void MakeFolder(const std::string& path, std::error_code& error) {
  fs::create_directory(path, error);
}

void EnterFolder(const std::string& path, std::error_code& error) {
  fs::current_path(path, error);
}

std::string BehindLinks(const std::string& path) {
  std::error_code error;
  const fs::path target = fs::canonical(path, error);
  return error ? path : target.native();
}

void MoveFileOver(const std::string& fresh, const std::string& target, std::error_code& error) {
  const fs::file_status before = fs::status(target, error);
  if (fs::exists(before)) fs::permissions(fresh, before.permissions(), error);
  fs::rename(fresh, target, error);
}

void RemoveFile(const std::string& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

}  // namespace quillomat
