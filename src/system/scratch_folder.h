// A folder for files that are needed for a moment, such as those of a library that writes files by
// their names only. Nobody else may look into it. It is gone with all that is in it when the object
// goes, and when a signal ends the program.
#pragma once

#include <string>
#include <vector>

#include "system/unfinished_files.h"

namespace quillomat {

class ScratchFolder {
 public:
  /// Makes it where the environment has such files, else in the usual folder. Throws RunTimeError
  /// 75 or 76 when there can be none, 70 when it may not be made, 61 when the disk is full.
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ScratchFolder(ScratchFolder&&) = delete;
  ScratchFolder& operator=(ScratchFolder&&) = delete;
  ~ScratchFolder();

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// The path of a file in it, which is removed also where the folder cannot be looked through.
  [[nodiscard]] std::string PathOf(const std::string& name);

 private:
  std::string path_;
  std::vector<std::string> files_;
  UnfinishedFile unfinished_;
};

}  // namespace quillomat
