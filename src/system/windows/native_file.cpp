#include "system/native_file.h"

#include <algorithm>
#include <utility>
#include <windows.h>

#include "system/native_path.h"
#include "system/paths.h"
#include "system/system_error.h"
#include "system/windows/handle_identity.h"
#include "system/windows/system_path.h"
#include "system/windows/windows_error.h"

namespace quillomat {
namespace {

// What one call reads or writes at most.
constexpr std::size_t kMostBytesPerCall = 1U << 30U;

HANDLE AsHandle(std::intptr_t handle) {
  return reinterpret_cast<HANDLE>(handle);
}

[[noreturn]] void ThrowError(DWORD error, FileAction action, const std::string& path = {}) {
  throw ToRunTimeError(ErrorCodeOf(error), action, path);
}

/// 0 for a file that is not there.
DWORD AttributesOf(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes == INVALID_FILE_ATTRIBUTES ? 0 : attributes;
}

std::intptr_t Open(const std::string& path, DWORD access, DWORD share, DWORD creation,
                   FileAction action) {
  if (NamesNothing(path)) ThrowError(ERROR_FILE_NOT_FOUND, action, path);
  const std::wstring system = SystemPath(path);
  if (!NamesFit(system)) ThrowError(ERROR_FILENAME_EXCED_RANGE, action, path);
  const DWORD attributes = AttributesOf(system);
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    throw RunTimeError(RunTimeErrorNumber::kPathFileAccess);
  }
  // A separator at the end asks for a folder.
  if (IsPathSeparator(path.back())) ThrowError(ERROR_DIRECTORY, action, path);
  // A hidden file or one of the system is emptied only for those who know that it is one.
  const DWORD kept = attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  const HANDLE handle = CreateFileW(system.c_str(), access, share, nullptr, creation,
                                    kept != 0 ? kept : FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) ThrowError(GetLastError(), action, path);
  return reinterpret_cast<std::intptr_t>(handle);
}

std::intptr_t SecondHandle(DWORD stream) {
  HANDLE handle = nullptr;
  if (DuplicateHandle(GetCurrentProcess(), GetStdHandle(stream), GetCurrentProcess(), &handle, 0,
                      FALSE, DUPLICATE_SAME_ACCESS) == 0) {
    ThrowError(GetLastError(), FileAction::kTransfer);
  }
  return reinterpret_cast<std::intptr_t>(handle);
}

}  // namespace

NativeFile NativeFile::OpenForReading(const std::string& path) {
  return NativeFile(Open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                         OPEN_EXISTING, FileAction::kOpenToRead));
}

NativeFile NativeFile::OpenForWriting(const std::string& path) {
  if (!MayBeMade(path)) ThrowError(ERROR_INVALID_NAME, FileAction::kOpenToWrite, path);
  // Not every file system minds the mark.
  if (!NamesNothing(path) && (AttributesOf(SystemPath(path)) & FILE_ATTRIBUTE_READONLY) != 0) {
    ThrowError(ERROR_ACCESS_DENIED, FileAction::kOpenToWrite, path);
  }
  return NativeFile(
      Open(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS, FileAction::kOpenToWrite));
}

NativeFile NativeFile::OpenForChanges(const std::string& path) {
  return NativeFile(
      Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, FileAction::kOpenToWrite));
}

std::optional<NativeFile> NativeFile::CreateInPlaceOf(const std::string& target,
                                                      const std::string& path) {
  if (!MayBeMade(target) || IsDeviceName(target)) return std::nullopt;
  const std::wstring system = SystemPath(target);
  if (!NamesFit(system)) return std::nullopt;
  const DWORD attributes = AttributesOf(system);
  if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) return std::nullopt;
  // A file that may not be written, or that others hold open, tells why when it is opened in place.
  const NativeFile model(
      reinterpret_cast<std::intptr_t>(CreateFileW(system.c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                                  nullptr, OPEN_EXISTING, attributes, nullptr)));
  if (!model.IsOpen() && GetLastError() != ERROR_FILE_NOT_FOUND) return std::nullopt;
  if (model.IsOpen() && GetFileType(AsHandle(model.handle_)) != FILE_TYPE_DISK) return std::nullopt;
  // It may be removed while it is open, when the program is interrupted.
  const HANDLE handle =
      CreateFileW(SystemPath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                  nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle != INVALID_HANDLE_VALUE) return NativeFile(reinterpret_cast<std::intptr_t>(handle));
  const DWORD error = GetLastError();
  if (error == ERROR_DISK_FULL || error == ERROR_HANDLE_DISK_FULL) {
    ThrowError(error, FileAction::kOpenToWrite, path);
  }
  return std::nullopt;
}

NativeFile NativeFile::StandardOutput() {
  return NativeFile(SecondHandle(STD_OUTPUT_HANDLE));
}

NativeFile NativeFile::StandardInput() {
  return NativeFile(SecondHandle(STD_INPUT_HANDLE));
}

std::int64_t NativeFile::Length() const {
  LARGE_INTEGER bytes{};
  if (GetFileType(AsHandle(handle_)) != FILE_TYPE_DISK) return 0;
  if (GetFileSizeEx(AsHandle(handle_), &bytes) == 0) {
    ThrowError(GetLastError(), FileAction::kTransfer);
  }
  return bytes.QuadPart;
}

bool NativeFile::IsStored() const {
  return GetFileType(AsHandle(handle_)) == FILE_TYPE_DISK;
}

std::optional<FileIdentity> NativeFile::Identity() const {
  return IdentityOfHandle(AsHandle(handle_));
}

/// A wait would be one of whole ticks, in which a pipe is filled many times over. So there is only
/// a look, for those who would not wait at all.
bool NativeFile::IsReady(std::chrono::milliseconds longest) const {
  const HANDLE file = AsHandle(handle_);
  if (longest.count() > 0 || GetFileType(file) != FILE_TYPE_PIPE) return true;
  DWORD bytes = 0;
  const bool hasWriter = PeekNamedPipe(file, nullptr, 0, nullptr, &bytes, nullptr) != 0;
  return !hasWriter || bytes > 0;
}

std::size_t NativeFile::Read(std::span<char> buffer) const {
  const auto wanted = static_cast<DWORD>(std::min(buffer.size(), kMostBytesPerCall));
  DWORD bytesRead = 0;
  if (ReadFile(AsHandle(handle_), buffer.data(), wanted, &bytesRead, nullptr) == 0) {
    const DWORD error = GetLastError();
    if (error != ERROR_BROKEN_PIPE) ThrowError(error, FileAction::kTransfer);
  }
  return bytesRead;
}

std::size_t NativeFile::ReadAt(std::int64_t place, std::span<char> buffer) const {
  constexpr unsigned kBitsOfHalf = 32;
  const auto wanted = static_cast<DWORD>(std::min(buffer.size(), kMostBytesPerCall));
  OVERLAPPED from{};
  from.Offset = static_cast<DWORD>(place);
  from.OffsetHigh = static_cast<DWORD>(place >> kBitsOfHalf);
  DWORD bytesRead = 0;
  if (ReadFile(AsHandle(handle_), buffer.data(), wanted, &bytesRead, &from) == 0) {
    const DWORD error = GetLastError();
    if (error != ERROR_HANDLE_EOF) ThrowError(error, FileAction::kTransfer);
  }
  return bytesRead;
}

std::optional<std::size_t> NativeFile::ReadAtHand(std::span<char> buffer) const {
  if (!IsReady(std::chrono::milliseconds::zero())) return std::nullopt;
  return Read(buffer);
}

void NativeFile::Write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMostBytesPerCall));
    DWORD bytesWritten = 0;
    if (WriteFile(AsHandle(handle_), bytes.data(), wanted, &bytesWritten, nullptr) == 0) {
      const DWORD error = GetLastError();
      if (error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA) throw ReaderGone();
      ThrowError(error, FileAction::kTransfer);
    }
    bytes.remove_prefix(bytesWritten);
  }
}

void NativeFile::Flush() const {
  // A pipe without a reader, or a console, has nothing to be flushed to.
  if (GetFileType(AsHandle(handle_)) != FILE_TYPE_DISK) return;
  if (FlushFileBuffers(AsHandle(handle_)) == 0) ThrowError(GetLastError(), FileAction::kTransfer);
}

void NativeFile::Empty() const noexcept {
  const LARGE_INTEGER start{};
  if (SetFilePointerEx(AsHandle(handle_), start, nullptr, FILE_BEGIN) != 0) {
    SetEndOfFile(AsHandle(handle_));
  }
}

void NativeFile::Close() {
  if (CloseHandle(AsHandle(std::exchange(handle_, kClosed))) == 0) {
    ThrowError(GetLastError(), FileAction::kTransfer);
  }
}

}  // namespace quillomat
