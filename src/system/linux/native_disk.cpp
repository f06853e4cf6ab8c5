#include "system/native_disk.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

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

/// What a folder tells of its files is on the disk afterwards, if this is a folder and a disk where
/// that can be asked for. The files stand in their places in any case.
void FlushFolder(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

/// Links are followed.
struct stat StatusOf(const std::string& path, std::error_code& error) {
  struct stat status {};
  const bool known = stat(path.c_str(), &status) == 0;
  error = known ? std::error_code() : std::error_code(errno, std::generic_category());
  return status;
}

}  // namespace

// There are none, only folders that nothing is mounted on.
void LetDrivesBeEmpty() {}

// What is asked of every file of a folder is asked of the system itself: to take a path to pieces
// for the standard library costs as much as the answer.

ItemKind KindOfItem(const std::string& path) {
  std::error_code error;
  const struct stat status = StatusOf(path, error);
  if (error) return ItemKind::kNothing;
  return S_ISDIR(status.st_mode) ? ItemKind::kFolder : ItemKind::kFile;
}

std::int64_t LengthOfFile(const std::string& path, std::error_code& error) {
  const struct stat status = StatusOf(path, error);
  if (error) return 0;
  if (S_ISDIR(status.st_mode)) {
    error = make_error_code(std::errc::is_a_directory);
  } else if (!S_ISREG(status.st_mode)) {
    error = make_error_code(std::errc::not_supported);
  }
  return status.st_size;
}

std::optional<FileIdentity> IdentityOfItem(const std::string& path) {
  std::error_code error;
  const struct stat status = StatusOf(path, error);
  if (error) return std::nullopt;
  return FileIdentity{status.st_dev, status.st_ino};
}

FolderListing ItemsOfFolder(const std::string& path, std::error_code& error) {
  FolderListing listing;
  fs::directory_iterator entry;
  do {
    entry = fs::directory_iterator(path, error);
  } while (error == std::errc::interrupted);
  while (!error && entry != fs::directory_iterator()) {
    AddItem(*entry, listing);
    entry.increment(error);
  }
  return listing;
}

void MakeFolder(const std::string& path, std::error_code& error) {
  fs::create_directory(path, error);
}

void MakePrivateFolder(const std::string& path, std::error_code& error) {
  const bool made = mkdir(path.c_str(), S_IRWXU) == 0;
  error = made ? std::error_code() : std::error_code(errno, std::generic_category());
}

void EnterFolder(const std::string& path, std::error_code& error) {
  fs::current_path(path, error);
}

std::optional<std::string> BehindLinks(const std::string& path) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  fs::path place = path;
  for (int links = 0; links < kMostLinks; ++links) {
    if (!fs::is_symlink(fs::symlink_status(place, error))) return place.native();
    const fs::path folder = place.has_parent_path() ? place.parent_path() : ".";
    const fs::path realFolder = fs::canonical(folder, error);
    // "/dev/stdout" leads to one of its links, which stand for files that are open.
    if (error || realFolder.native().starts_with("/proc/")) return std::nullopt;
    place = realFolder / fs::read_symlink(place, error);
    if (error) return std::nullopt;
  }
  return std::nullopt;
}

void MoveFileOver(const std::string& fresh, const std::string& target, std::error_code& error) {
  fs::rename(fresh, target, error);
}

void KeepName(const std::string& path) {
  FlushFolder(FolderPartOf(path));
}

void RemoveFile(const std::string& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

void RemoveFolder(const std::string& path) {
  std::error_code ignored;
  if (!fs::remove(path, ignored)) fs::remove_all(path, ignored);
}

}  // namespace quillomat
