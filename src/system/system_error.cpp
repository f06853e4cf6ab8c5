#include "system/system_error.h"

#include "system/file_system.h"

namespace quillomat {
namespace {

using Number = RunTimeErrorNumber;

Number ForMissing(FileAction action, const std::string& path) {
  if (action != FileAction::kOpenToRead) return Number::kPathNotFound;
  const std::string folder = FolderPartOf(path);
  return folder.empty() || FolderExists(folder) ? Number::kFileNotFound : Number::kPathNotFound;
}

Number ForCondition(std::errc condition, FileAction action, const std::string& path) {
  switch (condition) {
    case std::errc::no_such_file_or_directory:
      return ForMissing(action, path);
    case std::errc::not_a_directory:
      return Number::kPathNotFound;
    case std::errc::permission_denied:
    case std::errc::operation_not_permitted:
    case std::errc::text_file_busy:
    case std::errc::device_or_resource_busy:
      return Number::kPermissionDenied;
    case std::errc::is_a_directory:
    case std::errc::file_exists:
    case std::errc::read_only_file_system:
    case std::errc::filename_too_long:
    case std::errc::too_many_symbolic_link_levels:
    case std::errc::too_many_files_open:
    case std::errc::too_many_files_open_in_system:
    case std::errc::invalid_argument:
      return Number::kPathFileAccess;
    case std::errc::no_space_on_device:
    case std::errc::file_too_large:
      return Number::kDiskFull;
    case std::errc::not_enough_memory:
      return Number::kOutOfMemory;
    default:
      return Number::kDeviceIo;
  }
}

}  // namespace

RunTimeError ToRunTimeError(const std::error_code& code, FileAction action,
                            const std::string& path) {
  const std::error_condition condition = code.default_error_condition();
  if (condition.category() != std::generic_category()) return RunTimeError(Number::kDeviceIo);
  return RunTimeError(ForCondition(static_cast<std::errc>(condition.value()), action, path));
}

}  // namespace quillomat
