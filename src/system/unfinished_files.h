// The files that are being written and are not yet whole: those that must not stay behind when a
// signal, or a library, ends the program (see interruption.h).
//
// A signal may come at any moment, in any thread, and its handler may neither allocate nor lock. So
// their paths stand in a fixed table of the process, and each place of it is handed over with one
// atomic step.
#pragma once

#include <cstddef>
#include <string>

namespace quillomat {

/// One such file, or a folder of such files and nothing else. While it lives, an end by a signal
/// removes it.
class UnfinishedFile {
 public:
  /// To be made before the file is: until LetTheEndCome or the destructor no signal ends the
  /// program, so that none can come between the file and the note of it. `path` starts at a root.
  explicit UnfinishedFile(const std::string& path) noexcept;
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;
  UnfinishedFile(UnfinishedFile&&) = delete;
  UnfinishedFile& operator=(UnfinishedFile&&) = delete;
  /// The file is whole and has another name, is gone, or was never made.
  ~UnfinishedFile();

  /// The file has been made: a signal may end the program, and removes it.
  void LetTheEndCome() noexcept;
  /// From now to the next LetTheEndCome, no signal ends the program: what is done to the file, and
  /// what is noted of that, are one step for whoever ends it.
  void HoldTheEnd() noexcept;

 private:
  std::size_t place_;
  bool signalsWait_ = true;
};

/// Removes them all. The program must end at once afterwards: from now on none can be made, and
/// whoever tries waits for the end. May be called by a signal handler.
void RemoveUnfinishedFiles() noexcept;

/// Has them removed, too, when a library ends the program with exit, as the toolkit does when the
/// screen has gone.
void RemoveUnfinishedFilesAtExit() noexcept;

}  // namespace quillomat
