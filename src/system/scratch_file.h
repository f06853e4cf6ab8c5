// A file of the program's own for a short while, where the system keeps such files: for libraries
// that write to a path and not into a sink. It goes when the object does, or when a signal ends the
// program.
#pragma once

#include <string>

#include "system/unfinished_files.h"

namespace quillomat {

/// The folder in which such files are made: what the environment names, else the usual one.
[[nodiscard]] std::string ScratchFolder();

class ScratchFile {
 public:
  /// Makes it, empty. Throws RunTimeError 75 when there can be none, 61 when the disk is full.
  ScratchFile();
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  ScratchFile(ScratchFile&&) = delete;
  ScratchFile& operator=(ScratchFile&&) = delete;
  ~ScratchFile();

  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  std::string path_;
  UnfinishedFile unfinished_;
};

}  // namespace quillomat
