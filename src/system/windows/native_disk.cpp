#include "system/native_disk.h"

#include <memory>
#include <optional>
#include <windows.h>

#include "system/paths.h"
#include "system/windows/folder_search.h"
#include "system/windows/handle_identity.h"
#include "system/windows/system_path.h"
#include "system/windows/wide_text.h"
#include "system/windows/windows_error.h"

namespace quillomat {
namespace {

constexpr DWORD kAttributesKept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                  FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

struct HandleCloser {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, HandleCloser>;

/// A handle that may only be asked what it is; links are followed. Empty when there is none.
Handle OpenToAsk(const std::wstring& path) {
  const HANDLE handle =
      CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

struct Facts {
  DWORD attributes = 0;
  DWORD lengthHigh = 0;
  DWORD lengthLow = 0;

  [[nodiscard]] bool IsFolder() const { return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
};

/// Of what stands behind the links, if the path is one.
std::optional<Facts> FactsOf(const std::string& path) {
  const std::wstring system = SystemPath(path);
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(system.c_str(), GetFileExInfoStandard, &data) == 0) return std::nullopt;
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    return Facts{data.dwFileAttributes, data.nFileSizeHigh, data.nFileSizeLow};
  }
  const Handle handle = OpenToAsk(system);
  BY_HANDLE_FILE_INFORMATION target{};
  if (!handle || GetFileInformationByHandle(handle.get(), &target) == 0) return std::nullopt;
  return Facts{target.dwFileAttributes, target.nFileSizeHigh, target.nFileSizeLow};
}

bool IsLink(const WIN32_FIND_DATAW& item) {
  return (item.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         IsReparseTagNameSurrogate(item.dwReserved0);
}

void AddItem(const std::string& folder, const WIN32_FIND_DATAW& item, FolderListing& listing) {
  std::string name = FromWide(item.cFileName);
  if (name == "." || name == "..") return;
  const bool isFolder = (item.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  const bool isLink = IsLink(item);
  if (!isFolder && (!isLink || KindOfItem(JoinPath(folder, name)) == ItemKind::kFile)) {
    listing.files.push_back(std::move(name));
  } else if (isFolder && !isLink) {
    listing.subfolders.push_back(std::move(name));
  }
}

/// Cleared when the call succeeded.
void TakeError(BOOL succeeded, std::error_code& error) {
  error = succeeded != 0 ? std::error_code() : LastErrorCode();
}

}  // namespace

void LetDrivesBeEmpty() {
  SetErrorMode(SetErrorMode(0) | SEM_FAILCRITICALERRORS);
}

ItemKind KindOfItem(const std::string& path) {
  if (IsDeviceName(path)) return ItemKind::kFile;
  const std::optional<Facts> facts = FactsOf(path);
  if (!facts) return ItemKind::kNothing;
  // A separator at the end asks for a folder.
  const bool asFolder = IsPathSeparator(path.back());
  if (facts->IsFolder()) return ItemKind::kFolder;
  return asFolder ? ItemKind::kNothing : ItemKind::kFile;
}

std::int64_t LengthOfFile(const std::string& path, std::error_code& error) {
  const std::optional<Facts> facts = FactsOf(path);
  TakeError(facts ? TRUE : FALSE, error);
  if (!facts) return 0;
  if (facts->IsFolder()) error = make_error_code(std::errc::is_a_directory);
  if (IsPathSeparator(path.back())) error = make_error_code(std::errc::not_a_directory);
  return static_cast<std::int64_t>(std::uint64_t{facts->lengthHigh} << 32U | facts->lengthLow);
}

std::optional<FileIdentity> IdentityOfItem(const std::string& path) {
  const Handle handle = OpenToAsk(SystemPath(path));
  return handle ? IdentityOfHandle(handle.get()) : std::nullopt;
}

FolderListing ItemsOfFolder(const std::string& path, std::error_code& error) {
  FolderListing listing;
  WIN32_FIND_DATAW item{};
  const FolderSearch search = SearchFolder(path, item);
  if (!search) {
    // The root of an empty drive has not even an entry for itself.
    error = LastErrorCode();
    const ItemKind kind = KindOfItem(path);
    if (kind == ItemKind::kFile) error = make_error_code(std::errc::not_a_directory);
    const bool isEmpty = error == std::errc::no_such_file_or_directory && kind == ItemKind::kFolder;
    if (isEmpty) error.clear();
    return listing;
  }
  do {
    AddItem(path, item, listing);
  } while (FindNextFileW(search.get(), &item) != 0);
  TakeError(GetLastError() == ERROR_NO_MORE_FILES ? TRUE : FALSE, error);
  return listing;
}

void MakeFolder(const std::string& path, std::error_code& error) {
  if (!MayBeMade(path)) {
    error = make_error_code(std::errc::invalid_argument);
    return;
  }
  const BOOL made = CreateDirectoryW(SystemPath(path).c_str(), nullptr);
  const bool isThere = made != 0 || (GetLastError() == ERROR_ALREADY_EXISTS &&
                                     KindOfItem(path) == ItemKind::kFolder);
  TakeError(isThere ? TRUE : FALSE, error);
}

// The folder for such files is the user's own.
void MakePrivateFolder(const std::string& path, std::error_code& error) {
  TakeError(CreateDirectoryW(SystemPath(path).c_str(), nullptr), error);
}

void EnterFolder(const std::string& path, std::error_code& error) {
  TakeError(SetCurrentDirectoryW(ToWide(path).c_str()), error);
}

std::optional<std::string> BehindLinks(const std::string& path) {
  const std::wstring system = SystemPath(path);
  const DWORD attributes = GetFileAttributesW(system.c_str());
  const bool mayBeLink =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  const Handle handle = mayBeLink ? OpenToAsk(system) : Handle();
  if (!handle) return path;
  std::wstring target(GetFinalPathNameByHandleW(handle.get(), nullptr, 0, 0), L'\0');
  target.resize(
      GetFinalPathNameByHandleW(handle.get(), target.data(), static_cast<DWORD>(target.size()), 0));
  return target.empty() ? path : FromWide(target);
}

void MoveFileOver(const std::string& fresh, const std::string& target, std::error_code& error) {
  const std::wstring from = SystemPath(fresh);
  const std::wstring to = SystemPath(target);
  const std::optional<Facts> before = FactsOf(target);
  if (before && before->IsFolder()) {
    error = make_error_code(std::errc::is_a_directory);
    return;
  }
  // The first keeps attributes and permissions, but not every file system has it.
  if (before) SetFileAttributesW(from.c_str(), before->attributes & kAttributesKept);
  const BOOL replaced =
      before ? ReplaceFileW(to.c_str(), from.c_str(), nullptr, 0, nullptr, nullptr) : FALSE;
  constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  TakeError(replaced != 0 || MoveFileExW(from.c_str(), to.c_str(), kHow) != 0, error);
}

// Moving has done so.
void KeepName(const std::string& /*path*/) {}

void RemoveFile(const std::string& path) {
  DeleteFileW(SystemPath(path).c_str());
}

void RemoveFolder(const std::string& path) {
  std::error_code ignored;
  const FolderListing items = ItemsOfFolder(path, ignored);
  for (const std::string& file : items.files) RemoveFile(JoinPath(path, file));
  for (const std::string& folder : items.subfolders) RemoveFolder(JoinPath(path, folder));
  RemoveDirectoryW(SystemPath(path).c_str());
}

}  // namespace quillomat
