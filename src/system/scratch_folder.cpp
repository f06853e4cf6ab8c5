#include "system/scratch_folder.h"

#include <optional>
#include <system_error>

#include "system/environment.h"
#include "system/native_disk.h"
#include "system/paths.h"
#include "system/random_digits.h"
#include "system/system_error.h"

namespace quillomat {
namespace {

std::string PlaceForScratch() {
  for (const char* name : {"TMPDIR", "TEMP", "TMP"}) {
    if (const std::optional<std::string> folder = EnvironmentVariable(name)) return *folder;
  }
  return "/tmp";
}

}  // namespace

ScratchFolder::ScratchFolder()
    : path_(AbsolutePath(JoinPath(PlaceForScratch(), "quillomat." + RandomDigits()))),
      unfinished_(path_) {
  std::error_code error;
  MakePrivateFolder(path_, error);
  if (error) throw ToRunTimeError(error, FileAction::kOpenToWrite, path_);
  unfinished_.LetTheEndCome();
}

std::string ScratchFolder::PathOf(const std::string& name) {
  return files_.emplace_back(JoinPath(path_, name));
}

ScratchFolder::~ScratchFolder() {
  for (const std::string& file : files_) RemoveFile(file);
  RemoveFolder(path_);
}

}  // namespace quillomat
