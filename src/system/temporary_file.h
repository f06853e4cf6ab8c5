// The file beside another in which that one's next contents are gathered: in the same folder, with
// a name that is hidden, says whose it is and is used by nobody else
// (".list.txt.0123456789abcdef.new").
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "system/native_file.h"
#include "system/unfinished_files.h"

namespace quillomat {

class TemporaryFile {
 public:
  struct Made;

  /// Makes one for what stands at `path`, or behind it if that is a link, or will stand there. Null
  /// where there is nothing that could be replaced, or none can be made: then `path` is to be
  /// written in place. Throws a RunTimeError when the disk is full or fails.
  [[nodiscard]] static Made For(const std::string& path);

  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  TemporaryFile(TemporaryFile&&) = delete;
  TemporaryFile& operator=(TemporaryFile&&) = delete;
  /// Removes it unless it has taken its place. It must have been closed.
  ~TemporaryFile();

  /// To be called when all is written, flushed and closed. Throws a RunTimeError when it cannot be
  /// put there; then the target is as it was. An interruption finds it there and among the files
  /// that were written (see interruption.h), or neither.
  void TakeItsPlace();

 private:
  TemporaryFile(std::string asked, std::string target, std::string path);

  std::string asked_;
  std::string target_;
  std::string path_;
  bool isThere_ = false;
  UnfinishedFile unfinished_;
};

struct TemporaryFile::Made {
  std::unique_ptr<TemporaryFile> temporary;
  std::optional<NativeFile> file;  // open for writing; none if there is no temporary file
};

}  // namespace quillomat
