#include "system/scratch_file.h"

#include <optional>

#include "base/run_time_error.h"
#include "system/environment.h"
#include "system/native_disk.h"
#include "system/native_file.h"
#include "system/paths.h"
#include "system/random_digits.h"

namespace quillomat {

std::string ScratchFolder() {
  for (const char* name : {"TMPDIR", "TEMP", "TMP"}) {
    if (const std::optional<std::string> folder = EnvironmentVariable(name)) return *folder;
  }
  return "/tmp";
}

ScratchFile::ScratchFile()
    : path_(JoinPath(ScratchFolder(), "quillomat." + RandomDigits())), unfinished_(path_) {
  if (!NativeFile::CreateInPlaceOf(path_, path_)) {
    throw RunTimeError(RunTimeErrorNumber::kPathFileAccess);
  }
  unfinished_.HasBeenMade();
}

ScratchFile::~ScratchFile() {
  RemoveFile(path_);
}

}  // namespace quillomat
