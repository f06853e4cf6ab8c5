#include "system/windows/windows_error.h"

#include <algorithm>
#include <array>
#include <windows.h>

#include "system/windows/wide_text.h"

namespace quillomat {
namespace {

// Not among the compiler's headers.
constexpr DWORD kDiskQuotaExceeded = 1295;

struct Meaning {
  DWORD windowsError;
  std::errc condition;
};

// A path that leads through a file, or to a server that is not there, is "Path not found" like one
// that leads through a missing folder. What another program holds open may not be touched now.
constexpr auto kMeanings = std::to_array<Meaning>({
    {ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_INVALID_DRIVE, std::errc::no_such_file_or_directory},
    {ERROR_DIRECTORY, std::errc::not_a_directory},
    {ERROR_BAD_NETPATH, std::errc::not_a_directory},
    {ERROR_BAD_NET_NAME, std::errc::not_a_directory},
    {ERROR_NO_NET_OR_BAD_PATH, std::errc::not_a_directory},
    {ERROR_NETWORK_UNREACHABLE, std::errc::not_a_directory},
    {ERROR_HOST_UNREACHABLE, std::errc::not_a_directory},
    {ERROR_BAD_PATHNAME, std::errc::not_a_directory},
    {ERROR_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_NETWORK_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_SHARING_VIOLATION, std::errc::permission_denied},
    {ERROR_LOCK_VIOLATION, std::errc::permission_denied},
    {ERROR_CANT_ACCESS_FILE, std::errc::permission_denied},
    {ERROR_USER_MAPPED_FILE, std::errc::permission_denied},
    {ERROR_LOGON_FAILURE, std::errc::permission_denied},
    {ERROR_ALREADY_EXISTS, std::errc::file_exists},
    {ERROR_FILE_EXISTS, std::errc::file_exists},
    {ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    {ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    {ERROR_CANT_RESOLVE_FILENAME, std::errc::too_many_symbolic_link_levels},
    {ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
    {ERROR_INVALID_NAME, std::errc::invalid_argument},
    {ERROR_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    {kDiskQuotaExceeded, std::errc::no_space_on_device},
    {ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    {ERROR_NOT_ENOUGH_MEMORY, std::errc::not_enough_memory},
    {ERROR_OUTOFMEMORY, std::errc::not_enough_memory},
});

}  // namespace

std::error_code ErrorCodeOf(unsigned long windowsError) {
  const auto meaning = std::ranges::find(kMeanings, windowsError, &Meaning::windowsError);
  if (meaning != kMeanings.end()) return std::make_error_code(meaning->condition);
  return {static_cast<int>(windowsError), std::system_category()};
}

std::error_code LastErrorCode() {
  return ErrorCodeOf(GetLastError());
}

std::string ErrorText(unsigned long windowsError) {
  std::array<wchar_t, 1024> text{};
  // Without line breaks of its own, and nothing inserted: there are no arguments.
  constexpr DWORD kFlags =
      FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
  const DWORD units = FormatMessageW(kFlags, nullptr, windowsError, 0, text.data(),
                                     static_cast<DWORD>(text.size()), nullptr);
  std::wstring_view message(text.data(), units);
  while (message.ends_with(L' ')) message.remove_suffix(1);
  return FromWide(message);
}

}  // namespace quillomat
