#include "app/count/input_file_check.h"

#include "base/text_helpers.h"
#include "system/file_system.h"
#include "system/paths.h"

namespace quillomat {

InputFileCheck CheckInputPath(const std::string& path) {
  const std::string file(TrimBlanks(path));
  if (!file.empty() && IsPathSeparator(file.back())) return {ScanFileResult::kFolderNotFile, {}};
  const std::optional<std::int64_t> bytes = FileLength(file);
  const bool isThere = bytes || FileExists(file);
  return {isThere ? ScanFileResult::kDone : ScanFileResult::kNotFound, bytes};
}

}  // namespace quillomat
